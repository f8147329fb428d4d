#include "cleanup/folderobjects.h"

#include <doctest/doctest.h>

#include "cleanup/fixture.h"

using cleanup_test::Lines;

namespace {

struct FolderObjectsFixture {
    platform::simulated::Machine machine;
    platform::simulated::Disk& disk = machine.disk;
    platform::Folders& folders = machine.services.folders;
};

}  // namespace

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "a folder is got with its full path, without a backslash behind") {
    disk.MakeFolder("C:\\Temp", 16 | 2);
    const auto folder = cleanup::GetFolder(folders, "C:\\Temp\\");
    CHECK(folder.path == "C:\\Temp");
    CHECK(folder.attributes == 18);
}

TEST_CASE_FIXTURE(FolderObjectsFixture, "a folder that is not there, and a file, is failure 76") {
    disk.MakeFile("C:\\a.tmp");
    CHECK(FailureOf([&] { cleanup::GetFolder(folders, "C:\\absent"); }) == 76);
    CHECK(FailureOf([&] { cleanup::GetFolder(folders, "C:\\a.tmp"); }) == 76);
    CHECK(FailureOf([&] { cleanup::GetFolder(folders, "D:\\"); }) == 76);
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "a place that the system does not tell is failure 76, too") {
    CHECK(FailureOf([&] { cleanup::GetFolder(folders, ""); }) == 76);
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "the root of a drive is a plain folder, though NTFS hides it") {
    disk.MakeFolder("C:\\x");
    REQUIRE(folders.Find("C:\\")->attributes == 22);
    const auto root = cleanup::GetFolder(folders, "c:\\");
    CHECK(root.path == "c:\\");
    CHECK(root.attributes == 16);
}

TEST_CASE_FIXTURE(FolderObjectsFixture, "paths in a folder have one backslash between") {
    CHECK(cleanup::PathIn("C:\\", "a") == "C:\\a");
    CHECK(cleanup::PathIn("C:\\x", "a") == "C:\\x\\a");
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "sub-folders come in the disk's order, with links, without files") {
    disk.MakeFolder("C:\\x\\b");
    disk.MakeFile("C:\\x\\file");
    disk.MakeLink("C:\\x\\link", "C:\\nowhere");
    disk.MakeFolder("C:\\x\\a");
    Lines paths;
    for (const auto& folder : cleanup::SubFolders(folders, "C:\\x")) paths.push_back(folder.path);
    CHECK(paths == Lines{"C:\\x\\b", "C:\\x\\link", "C:\\x\\a"});
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "the size is the sum of all files below, hidden ones and links' too") {
    disk.MakeFile("C:\\x\\a").toldSize = 5000000000;
    disk.MakeFile("C:\\x\\sub\\deep\\b", 2 | 4).content = "123";
    disk.MakeFile("C:\\y\\c").content = "12";
    CHECK(cleanup::SizeOf(folders, "C:\\x") == 5000000003.0);
    disk.MakeLink("C:\\x\\link", "C:\\y");
    CHECK(cleanup::SizeOf(folders, "C:\\x") == 5000000005.0);
    CHECK(cleanup::SizeOf(folders, "C:\\y") == 2.0);
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "a folder below that may not be read makes the size fail with 70") {
    disk.MakeFolder("C:\\x\\sub\\locked").unreadable = true;
    CHECK(FailureOf([&] { cleanup::SizeOf(folders, "C:\\x"); }) == 70);
    disk.At("C:\\x\\sub\\locked").unreadable = false;
    CHECK(FailureOf([&] { cleanup::SizeOf(folders, "C:\\x"); }) == 0);
}

TEST_CASE_FIXTURE(FolderObjectsFixture,
                  "the size of a folder that is gone meanwhile fails with 76") {
    CHECK(FailureOf([&] { cleanup::SizeOf(folders, "C:\\gone"); }) == 76);
}
