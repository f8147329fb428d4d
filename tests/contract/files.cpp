#include "platform/files.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

struct FilesFixture {
    contract::TestMachine machine;
    platform::Files& files = machine.Services().files;

    void Append(std::string_view path, std::string_view bytes) {
        const auto file = files.OpenForAppend(path);
        files.Write(file, bytes);
        files.Close(file);
    }
};

}  // namespace

TEST_CASE_FIXTURE(FilesFixture, "a file that is not there is made, empty") {
    const std::string path = machine.FilePath("new.log");
    CHECK(machine.FileContent(path) == std::nullopt);
    files.Close(files.OpenForAppend(path));
    CHECK(machine.FileContent(path) == "");
}

TEST_CASE_FIXTURE(FilesFixture, "what is there stays and what is written goes behind it") {
    const std::string path = machine.FilePath("grow.log");
    Append(path, "one\r\n");
    Append(path, "two\r\n");
    const auto file = files.OpenForAppend(path);
    files.Write(file, "three");
    files.Write(file, "");
    files.Write(file, "four");
    files.Close(file);
    CHECK(machine.FileContent(path) == "one\r\ntwo\r\nthreefour");
}

TEST_CASE_FIXTURE(FilesFixture, "bytes are written as they are") {
    const std::string path = machine.FilePath("bytes.log");
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    Append(path, bytes);
    CHECK((machine.FileContent(path) == bytes));
}

TEST_CASE_FIXTURE(FilesFixture, "a path may hold umlauts and is found in any case") {
    Append(machine.FilePath("Größe.log"), "a");
    Append(machine.FilePath("GRÖßE.LOG"), "b");
    CHECK(machine.FileContent(machine.FilePath("Größe.log")) == "ab");
}

TEST_CASE_FIXTURE(FilesFixture, "a file that is open for appending can be read") {
    const std::string path = machine.FilePath("open.log");
    const auto file = files.OpenForAppend(path);
    files.Write(file, "so far");
    CHECK(machine.FileContent(path) == "so far");
    files.Close(file);
}

TEST_CASE_FIXTURE(FilesFixture, "a file that is open cannot be opened for appending once more") {
    const std::string path = machine.FilePath("held.log");
    const auto file = files.OpenForAppend(path);
    CHECK(FailureOf([&] { files.OpenForAppend(path); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(FailureOf([&] { Append(path, "x"); }) == 0);
}

TEST_CASE_FIXTURE(FilesFixture, "two files are open side by side") {
    const auto first = files.OpenForAppend(machine.FilePath("first.log"));
    const auto second = files.OpenForAppend(machine.FilePath("second.log"));
    CHECK(first != second);
    files.Write(second, "2");
    files.Write(first, "1");
    files.Close(first);
    files.Close(second);
    CHECK(machine.FileContent(machine.FilePath("first.log")) == "1");
    CHECK(machine.FileContent(machine.FilePath("second.log")) == "2");
}

TEST_CASE_FIXTURE(FilesFixture, "writing to a handle that is closed or none is a bad file number") {
    const auto file = files.OpenForAppend(machine.FilePath("closed.log"));
    files.Close(file);
    files.Close(file);
    files.Close(4711);
    CHECK(FailureOf([&] { files.Write(file, "x"); }) == runtime::BadFileNumber);
    CHECK(FailureOf([&] { files.Write(4711, "x"); }) == runtime::BadFileNumber);
}

TEST_CASE_FIXTURE(FilesFixture, "the empty path is not found") {
    CHECK(FailureOf([&] { files.OpenForAppend(""); }) == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a file can be opened for reading and is free again after closing") {
    const std::string path = machine.FilePath("read.tmp");
    Append(path, "x");
    for (int i = 0; i < 2; ++i) {
        CHECK(FailureOf([&] { files.Close(files.OpenForReading(path)); }) == 0);
    }
    CHECK(machine.FileContent(path) == "x");
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a file that is open for reading cannot be opened for reading once more") {
    const std::string path = machine.FilePath("read.tmp");
    Append(path, "x");
    const auto file = files.OpenForReading(path);
    CHECK(FailureOf([&] { files.OpenForReading(path); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(FailureOf([&] { files.Close(files.OpenForReading(path)); }) == 0);
}

TEST_CASE_FIXTURE(FilesFixture, "a file that is open for appending can be opened for reading") {
    const std::string path = machine.FilePath("append.tmp");
    const auto file = files.OpenForAppend(path);
    CHECK(FailureOf([&] { files.Close(files.OpenForReading(path)); }) == 0);
    files.Close(file);
}

TEST_CASE_FIXTURE(FilesFixture, "writing to a file opened for reading is denied") {
    const std::string path = machine.FilePath("read.tmp");
    Append(path, "x");
    const auto file = files.OpenForReading(path);
    CHECK(FailureOf([&] { files.Write(file, "y"); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(machine.FileContent(path) == "x");
}

TEST_CASE_FIXTURE(FilesFixture,
                  "opening for reading makes no file: absent, no directory, a directory") {
    Append(machine.FilePath("neighbour.tmp"), "x");
    const std::string absent = machine.FilePath("absent.tmp");
    CHECK(FailureOf([&] { files.OpenForReading(absent); }) == runtime::FileNotFound);
    CHECK(machine.FileContent(absent) == std::nullopt);
    const std::string nowhere = machine.FilePath("absent\\file.tmp");
    CHECK(FailureOf([&] { files.OpenForReading(nowhere); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { files.OpenForReading(""); }) == runtime::PathNotFound);
    std::string directory = machine.FilePath("");
    directory.pop_back();
    CHECK(FailureOf([&] { files.OpenForReading(directory); }) == runtime::PathFileAccess);
}

TEST_CASE_FIXTURE(FilesFixture, "a file is read whole, whatever its bytes and its size") {
    const std::string path = machine.FilePath("whole.inf");
    std::string bytes;
    for (int i = 0; i < 100000; ++i) bytes += static_cast<char>(i);
    Append(path, bytes);
    CHECK((files.Read(path) == bytes));
    Append(machine.FilePath("empty.inf"), "");
    CHECK(files.Read(machine.FilePath("empty.inf")) == "");
}

TEST_CASE_FIXTURE(FilesFixture, "reading a whole file refuses as opening it for reading does") {
    const std::string path = machine.FilePath("held.inf");
    Append(path, "x");
    CHECK(FailureOf([&] { files.Read(machine.FilePath("absent.inf")); }) == runtime::FileNotFound);
    CHECK(FailureOf([&] { files.Read(machine.FilePath("absent\\x.inf")); }) ==
          runtime::PathNotFound);
    const auto file = files.OpenForReading(path);
    CHECK(FailureOf([&] { files.Read(path); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(files.Read(path) == "x");
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a file that others use and share is read whole, but not for itself") {
    const std::string path = machine.FilePath("shared.inf");
    Append(path, "x");
    machine.WithShared(path, [&] {
        CHECK(files.Read(path) == "x");
        CHECK(FailureOf([&] { files.OpenForReading(path); }) == runtime::PermissionDenied);
    });
    CHECK(FailureOf([&] { files.Close(files.OpenForReading(path)); }) == 0);
}

TEST_CASE_FIXTURE(FilesFixture, "a file that others use and share is not removed, now or later") {
    const std::string path = machine.FilePath("shared.inf");
    Append(path, "x");
    machine.WithShared(path, [&] {
        CHECK(FailureOf([&] { files.Remove(path, true); }) == runtime::PermissionDenied);
    });
    CHECK(machine.FileContent(path) == "x");
    files.Remove(path, false);
    CHECK(machine.FileContent(path) == std::nullopt);
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a read-only file that is not removed with force either stays read-only") {
    const std::string path = machine.FilePath("shared.inf");
    Append(path, "x");
    machine.WithShared(path, [&] {
        machine.Protect(path);
        CHECK(FailureOf([&] { files.Remove(path, true); }) == runtime::PermissionDenied);
    });
    CHECK(FailureOf([&] { files.Remove(path, false); }) == runtime::PermissionDenied);
    CHECK(machine.FileContent(path) == "x");
    files.Remove(path, true);
}

TEST_CASE_FIXTURE(FilesFixture, "a file is removed, a read-only one with force only") {
    const std::string path = machine.FilePath("gone.inf");
    Append(path, "x");
    files.Remove(path, false);
    CHECK(machine.FileContent(path) == std::nullopt);
    Append(path, "x");
    machine.Protect(path);
    CHECK(FailureOf([&] { files.Remove(path, false); }) == runtime::PermissionDenied);
    CHECK(machine.FileContent(path) == "x");
    files.Remove(path, true);
    CHECK(machine.FileContent(path) == std::nullopt);
}

TEST_CASE_FIXTURE(FilesFixture, "what is not there or is open here is not removed") {
    const std::string path = machine.FilePath("open.inf");
    const auto file = files.OpenForAppend(path);
    CHECK(FailureOf([&] { files.Remove(path, true); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(machine.FileContent(path) == "");
    CHECK(FailureOf([&] { files.Remove(machine.FilePath("absent.inf"), true); }) ==
          runtime::FileNotFound);
    CHECK(FailureOf([&] { files.Remove(machine.FilePath("absent\\x.inf"), true); }) ==
          runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a text is written into a new file and in the place of an old one") {
    const std::string path = machine.FilePath("text.inf");
    files.WriteText(path, "what was there is longer");
    files.WriteText(path, std::string("a\0\xFF\r\n", 5));
    CHECK((machine.FileContent(path) == std::string("a\0\xFF\r\n", 5)));
    files.WriteText(path, "");
    CHECK(machine.FileContent(path) == "");
    CHECK(FailureOf([&] { files.WriteText("", "x"); }) == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FilesFixture, "a text does not go into a file that is open") {
    const std::string path = machine.FilePath("text.inf");
    const auto file = files.OpenForAppend(path);
    CHECK(FailureOf([&] { files.WriteText(path, "x"); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(machine.FileContent(path) == "");
}
