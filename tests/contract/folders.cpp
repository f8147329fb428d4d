#include "platform/folders.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "cleanup/deletefolder.h"
#include "contract/machine.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

using platform::FolderEntry;

struct FoldersFixture {
    contract::TestMachine machine;
    platform::Folders& folders = machine.Services().folders;
    const std::string top = machine.FilePath("top");

    FoldersFixture() { machine.MakeFolder(top); }

    std::string In(std::string_view name) const { return top + '\\' + std::string(name); }
    void Put(std::string_view path, std::string_view bytes) {
        machine.Services().files.WriteText(path, bytes);
    }
    std::optional<FolderEntry> Listed(std::string_view name) {
        const auto entries = folders.List(top);
        const auto found = std::find_if(entries.begin(), entries.end(),
                                        [&](const auto& entry) { return entry.name == name; });
        if (found == entries.end()) return std::nullopt;
        return *found;
    }
};

}  // namespace

TEST_CASE_FIXTURE(FoldersFixture, "an empty folder lists nothing, not even the dots") {
    CHECK(folders.List(top).empty());
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "files and folders are listed as they are spelled, with their sizes") {
    Put(In("Größe.TMP"), "12345");
    Put(In("empty"), "");
    machine.MakeFolder(In("Ünter"));
    CHECK(folders.List(top).size() == 3);
    REQUIRE(Listed("Größe.TMP"));
    CHECK(Listed("Größe.TMP")->size == 5);
    CHECK_FALSE(Listed("Größe.TMP")->IsFolder());
    REQUIRE(Listed("empty"));
    CHECK(Listed("empty")->size == 0);
    REQUIRE(Listed("Ünter"));
    CHECK(Listed("Ünter")->IsFolder());
    CHECK(Listed("Ünter")->size == 0);
    CHECK_FALSE(Listed("Ünter")->IsLink());
}

TEST_CASE_FIXTURE(FoldersFixture, "odd names are listed as they are spelled") {
    const std::vector<std::string> names = {".a",
                                            "..a",
                                            "a b.c d",
                                            "~1",
                                            "[a]{b}(c)",
                                            "%TEMP%",
                                            "Привет",
                                            "日本語",
                                            "\xF0\x9D\x84\x9E",
                                            std::string(200, 'n')};
    for (const std::string& name : names) Put(In(name), "x");
    CHECK(folders.List(top).size() == names.size());
    for (const std::string& name : names) {
        CAPTURE(name);
        CHECK(Listed(name));
    }
}

TEST_CASE_FIXTURE(FoldersFixture, "each of many is listed once") {
    std::set<std::string> names;
    const std::string tail(120, 'x');
    for (int number = 0; number < 500; ++number) names.insert(std::to_string(number) + tail);
    for (const std::string& name : names) Put(In(name), "");
    const auto entries = folders.List(top);
    CHECK(entries.size() == names.size());
    for (const FolderEntry& entry : entries) CHECK(names.erase(entry.name) == 1);
}

TEST_CASE_FIXTURE(FoldersFixture, "a backslash behind the path changes nothing") {
    Put(In("a"), "1");
    CHECK(folders.List(top + '\\').size() == 1);
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "attributes are told by the listing and by the look at one, all alike") {
    for (const std::uint32_t attributes : {32u, 33u, 34u, 35u, 36u, 37u, 38u, 39u}) {
        const std::string name = "f" + std::to_string(attributes);
        Put(In(name), "x");
        machine.SetAttributes(In(name), attributes);
        CAPTURE(attributes);
        REQUIRE(Listed(name));
        CHECK(Listed(name)->attributes == attributes);
        REQUIRE(folders.Find(In(name)));
        CHECK(folders.Find(In(name))->attributes == attributes);
        machine.SetAttributes(In(name), 32);
    }
}

TEST_CASE_FIXTURE(FoldersFixture, "a hidden system folder is told as 22") {
    machine.MakeFolder(In("h"));
    machine.SetAttributes(In("h"), 16 | 2 | 4);
    CHECK(Listed("h")->attributes == 22);
    CHECK(folders.List(In("h")).empty());
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "a look at one tells what the listing tells, by the path asked for") {
    Put(In("a.dat"), "123");
    const auto found = folders.Find(In("A.DAT"));
    REQUIRE(found);
    CHECK(found->name == In("A.DAT"));
    CHECK(found->size == 3);
    CHECK(found->modified == Listed("a.dat")->modified);
    CHECK(found->modified.year >= 2004);
    CHECK(folders.Find(top)->IsFolder());
    CHECK(folders.Find(In("absent")) == std::nullopt);
    CHECK(folders.Find(In("absent\\a")) == std::nullopt);
    CHECK(folders.Find("") == std::nullopt);
}

TEST_CASE_FIXTURE(FoldersFixture, "what is no folder cannot be listed: absent, a file, nothing") {
    Put(In("file"), "x");
    CHECK(FailureOf([&] { folders.List(In("absent")); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { folders.List(In("absent\\deeper")); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { folders.List(In("file")); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { folders.List(machine.MissingDrive() + "\\"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { folders.List(""); }) == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FoldersFixture, "a path that leaves no room for a search is not found") {
    std::string path = top;
    while (path.size() < 246) {
        path += "\\" + std::string(std::min<std::size_t>(10, 250 - path.size()), 'x');
        machine.MakeFolder(path);
    }
    CHECK(FailureOf([&] { folders.List(path); }) == 0);
    path += "\\" + std::string(257 - path.size(), 'y');
    REQUIRE(path.size() == 258);
    CHECK(FailureOf([&] { folders.List(path); }) == runtime::PathNotFound);
    CHECK(folders.Find(path + "zz") == std::nullopt);
}

TEST_CASE_FIXTURE(FoldersFixture, "a folder that is in other hands may not be read") {
    machine.MakeFolder(In("held"));
    Put(In("held\\a"), "x");
    machine.WithUnreadable(In("held"), [&] {
        CHECK(FailureOf([&] { folders.List(In("held")); }) == runtime::PermissionDenied);
        CHECK(Listed("held"));
    });
    CHECK(folders.List(In("held")).size() == 1);
}

TEST_CASE_FIXTURE(FoldersFixture, "a full path has no dots and starts at a drive") {
    CHECK(folders.FullPath(top) == top);
    CHECK(folders.FullPath("") == "");
    CHECK(folders.FullPath("\\").substr(1) == ":\\");
    CHECK(folders.FullPath("\\Temp").substr(1) == ":\\Temp");
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "the short path of a folder has no blanks and leads to the same folder") {
    machine.MakeFolder(In("Größe und Öl"));
    Put(In("Größe und Öl\\file"), "x");
    const std::string path = folders.ShortPath(In("Größe und Öl"), 164);
    REQUIRE_FALSE(path.empty());
    CHECK(path.find(' ') == std::string::npos);
    CHECK(folders.Find(path + "\\file"));
    CHECK(folders.LongPath(path).ends_with("\\Größe und Öl"));
    const std::size_t length = machine.Services().locale.ToAnsi(path).size();
    CHECK(folders.ShortPath(In("Größe und Öl"), length) == "");
    CHECK(folders.ShortPath(In("Größe und Öl"), length + 1) == path);
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "what is not there has no short path, and its long one is itself") {
    CHECK(folders.ShortPath(In("absent"), 164) == "");
    CHECK(folders.ShortPath("", 164) == "");
    CHECK(folders.LongPath(In("ABSENT~1")) == In("ABSENT~1"));
    CHECK(folders.LongPath("") == "");
}

TEST_CASE_FIXTURE(FoldersFixture, "a drive alone is its current directory") {
    const std::string drive = top.substr(0, 2);
    const std::string before = folders.FullPath(drive);
    folders.MakeCurrent(top);
    // Wine tells it with a backslash at its end.
    CHECK(folders.FullPath(drive).substr(0, top.size()) == top);
    CHECK(FailureOf([&] { folders.MakeCurrent(In("absent")); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { folders.MakeCurrent(""); }) == runtime::PathNotFound);
    CHECK(folders.FullPath(drive).substr(0, top.size()) == top);
    folders.MakeCurrent(drive + '\\');
    CHECK(folders.FullPath(drive) == drive + '\\');
    folders.MakeCurrent(before);
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "an empty folder is removed, a full one, a file and an absent one not") {
    machine.MakeFolder(In("a"));
    Put(In("a\\file"), "x");
    CHECK(FailureOf([&] { folders.Remove(In("a"), true); }) == runtime::PermissionDenied);
    CHECK(FailureOf([&] { folders.Remove(In("a\\file"), true); }) == runtime::PermissionDenied);
    CHECK(machine.FileContent(In("a\\file")) == "x");
    machine.Services().files.Remove(In("a\\file"), true);
    folders.Remove(In("a"), false);
    CHECK_FALSE(folders.Find(In("a")));
    CHECK(FailureOf([&] { folders.Remove(In("a"), true); }) == runtime::PathNotFound);
}

TEST_CASE_FIXTURE(FoldersFixture, "a read-only folder is removed with force") {
    machine.MakeFolder(In("a"));
    machine.SetAttributes(In("a"), 16 | 1);
    folders.Remove(In("a"), true);
    CHECK_FALSE(folders.Find(In("a")));
}

TEST_CASE_FIXTURE(FoldersFixture, "a read-only folder that does not go keeps its attribute") {
    machine.MakeFolder(In("a"));
    Put(In("a\\file"), "x");
    machine.SetAttributes(In("a"), 16 | 1);
    // Wine knows it of files only.
    const auto before = folders.Find(In("a"))->attributes;
    CHECK(FailureOf([&] { folders.Remove(In("a"), true); }) == runtime::PermissionDenied);
    CHECK(FailureOf([&] { machine.Services().files.Remove(In("a"), true); }) ==
          runtime::PermissionDenied);
    CHECK(folders.Find(In("a"))->attributes == before);
    machine.SetAttributes(In("a"), 16);
}

TEST_CASE_FIXTURE(FoldersFixture, "a read-only file that does not go keeps its attribute") {
    Put(In("a"), "x");
    machine.SetAttributes(In("a"), 33);
    const auto file = machine.Services().files.OpenForReading(In("a"));
    CHECK(FailureOf([&] { machine.Services().files.Remove(In("a"), true); }) ==
          runtime::PermissionDenied);
    CHECK(folders.Find(In("a"))->attributes == 33);
    machine.Services().files.Close(file);
    machine.SetAttributes(In("a"), 32);
}

TEST_CASE_FIXTURE(FoldersFixture, "a link to a folder is told as one and lists what it leads to") {
    machine.MakeFolder(In("target"));
    Put(In("target\\a"), "x");
    machine.MakeLink(In("link"), In("target"));
    REQUIRE(Listed("link"));
    CHECK(Listed("link")->IsFolder());
    CHECK(Listed("link")->IsLink());
    CHECK(folders.Find(In("link"))->IsLink());
    CHECK_FALSE(folders.Find(In("target"))->IsLink());
    CHECK(folders.List(In("link")).size() == 1);
    CHECK_FALSE(folders.Find(In("link\\a"))->IsLink());
}

TEST_CASE_FIXTURE(FoldersFixture, "what a link leads to is not removed with it") {
    machine.MakeFolder(In("target"));
    Put(In("target\\a"), "x");
    machine.MakeLink(In("link"), In("target"));
    FailureOf([&] { folders.Remove(In("link"), true); });
    CHECK(machine.FileContent(In("target\\a")) == "x");
}

TEST_CASE_FIXTURE(FoldersFixture,
                  "a folder is deleted with the link in it, and what that leads to stays") {
    machine.MakeFolder(In("target"));
    Put(In("target\\a"), "x");
    machine.MakeFolder(In("gone"));
    Put(In("gone\\b"), "x");
    machine.MakeLink(In("gone\\link"), In("target"));
    const int failure =
        FailureOf([&] { cleanup::DeleteFolder(folders, machine.Services().files, In("gone")); });
    CHECK(machine.FileContent(In("target\\a")) == "x");
    // Wine keeps the link, and with it the folder.
    if (machine.IsRealXp()) CHECK(failure == 0);
    CHECK((failure == 0) == !folders.Find(In("gone")));
}
