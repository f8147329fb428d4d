#include "platform/files.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"

namespace {

struct Fixture {
    contract::TestMachine machine;
    platform::Files& files = machine.Services().files;

    void Append(std::string_view path, std::string_view bytes) {
        const auto file = files.OpenForAppend(path);
        files.Write(file, bytes);
        files.Close(file);
    }
    template <typename Statement>
    int NumberOf(Statement&& statement) {
        try {
            statement();
        } catch (const runtime::Failure& failure) {
            return failure.number;
        }
        return 0;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a file that is not there is made, empty") {
    const std::string path = machine.FilePath("new.log");
    CHECK(machine.FileContent(path) == std::nullopt);
    files.Close(files.OpenForAppend(path));
    CHECK(machine.FileContent(path) == "");
}

TEST_CASE_FIXTURE(Fixture, "what is there stays and what is written goes behind it") {
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

TEST_CASE_FIXTURE(Fixture, "bytes are written as they are") {
    const std::string path = machine.FilePath("bytes.log");
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    Append(path, bytes);
    CHECK((machine.FileContent(path) == bytes));
}

TEST_CASE_FIXTURE(Fixture, "a path may hold umlauts and is found in any case") {
    Append(machine.FilePath("Größe.log"), "a");
    Append(machine.FilePath("GRÖßE.LOG"), "b");
    CHECK(machine.FileContent(machine.FilePath("Größe.log")) == "ab");
}

TEST_CASE_FIXTURE(Fixture, "a file that is open for appending can be read") {
    const std::string path = machine.FilePath("open.log");
    const auto file = files.OpenForAppend(path);
    files.Write(file, "so far");
    CHECK(machine.FileContent(path) == "so far");
    files.Close(file);
}

TEST_CASE_FIXTURE(Fixture, "a file that is open cannot be opened for appending once more") {
    const std::string path = machine.FilePath("held.log");
    const auto file = files.OpenForAppend(path);
    CHECK(NumberOf([&] { files.OpenForAppend(path); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(NumberOf([&] { Append(path, "x"); }) == 0);
}

TEST_CASE_FIXTURE(Fixture, "two files are open side by side") {
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

TEST_CASE_FIXTURE(Fixture, "writing to a handle that is closed or none is a bad file number") {
    const auto file = files.OpenForAppend(machine.FilePath("closed.log"));
    files.Close(file);
    files.Close(file);
    files.Close(4711);
    CHECK(NumberOf([&] { files.Write(file, "x"); }) == runtime::BadFileNumber);
    CHECK(NumberOf([&] { files.Write(4711, "x"); }) == runtime::BadFileNumber);
}

TEST_CASE_FIXTURE(Fixture, "the empty path is not found") {
    CHECK(NumberOf([&] { files.OpenForAppend(""); }) == runtime::PathNotFound);
}
