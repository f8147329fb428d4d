#include "cleanup/deletefolder.h"

#include <doctest/doctest.h>

#include "cleanup/fixture.h"

namespace {

struct DeleteFolderFixture {
    platform::simulated::Machine machine;
    platform::simulated::Disk& disk = machine.disk;
    platform::Folders& folders = machine.services.folders;
    platform::Files& files = machine.services.files;
};

}  // namespace

TEST_CASE_FIXTURE(DeleteFolderFixture, "a file taken for a folder is failure 76 and stays") {
    disk.MakeFile("C:\\a.tmp");
    CHECK(FailureOf([&] { cleanup::DeleteFolder(folders, files, "C:\\a.tmp"); }) == 76);
    CHECK(FailureOf([&] { cleanup::DropLinks(folders, files, "C:\\a.tmp"); }) == 76);
    CHECK(folders.Find("C:\\a.tmp").has_value());
}

TEST_CASE_FIXTURE(DeleteFolderFixture,
                  "a link to a file taken for a folder is failure 76 and stays") {
    disk.MakeFile("C:\\a.tmp").attributes |= platform::attribute::Link;
    CHECK(FailureOf([&] { cleanup::DeleteFolder(folders, files, "C:\\a.tmp"); }) == 76);
    CHECK(FailureOf([&] { cleanup::DropLinks(folders, files, "C:\\a.tmp"); }) == 76);
    CHECK(folders.Find("C:\\a.tmp").has_value());
}

TEST_CASE_FIXTURE(DeleteFolderFixture, "a folder that is not there is failure 76") {
    CHECK(FailureOf([&] { cleanup::DeleteFolder(folders, files, "C:\\gone"); }) == 76);
    CHECK(FailureOf([&] { cleanup::DropLinks(folders, files, "C:\\gone"); }) == 76);
}

TEST_CASE_FIXTURE(DeleteFolderFixture, "only the links to folders are taken out of a folder") {
    disk.MakeFile("D:\\data\\precious.txt");
    disk.MakeFile("C:\\x\\deep\\a.txt");
    disk.MakeLink("C:\\x\\deep\\link", "D:\\data");
    cleanup::DropLinks(folders, files, "C:\\x");
    CHECK_FALSE(folders.Find("C:\\x\\deep\\link").has_value());
    CHECK(folders.Find("C:\\x\\deep\\a.txt").has_value());
    CHECK(folders.Find("D:\\data\\precious.txt").has_value());
}
