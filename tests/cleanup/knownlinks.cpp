#include "cleanup/knownlinks.h"

#include <doctest/doctest.h>

#include "cleanup/fixture.h"

namespace {

struct KnownLinksFixture {
    platform::simulated::Machine machine;
    platform::simulated::Disk& disk = machine.disk;
    platform::Folders& folders = machine.services.folders;
    cleanup::KnownLinks links;
};

}  // namespace

TEST_CASE_FIXTURE(KnownLinksFixture,
                  "a link that the search came through leads on, one that came later not") {
    disk.MakeFolder("D:\\data");
    disk.MakeLink("C:\\x\\known", "D:\\data");
    disk.MakeLink("C:\\x\\later", "D:\\data");
    links.Add(folders, "C:\\x\\known");
    CHECK(links.AllowRemoval(folders, "C:\\x\\known\\a.tmp"));
    CHECK_FALSE(links.AllowRemoval(folders, "C:\\x\\later\\a.tmp"));
}

TEST_CASE_FIXTURE(KnownLinksFixture, "a link itself need not be known, only those above it") {
    disk.MakeLink("C:\\x\\link", "D:\\data");
    CHECK(links.AllowRemoval(folders, "C:\\x\\link"));
}

TEST_CASE_FIXTURE(KnownLinksFixture,
                  "a path that the system would not take literally is left alone") {
    disk.MakeFolder("C:\\x");
    CHECK(links.AllowRemoval(folders, "C:\\x\\a.tmp"));
    CHECK_FALSE(links.AllowRemoval(folders, "C:\\x\\nul"));
    CHECK_FALSE(links.AllowRemoval(folders, "C:\\x\\a.tmp "));
}

TEST_CASE_FIXTURE(KnownLinksFixture, "a path below a folder that is gone leads nowhere") {
    CHECK_FALSE(links.AllowRemoval(folders, "C:\\gone\\a.tmp"));
}

TEST_CASE_FIXTURE(KnownLinksFixture, "on a server folders begin behind the share") {
    disk.MakeFolder("\\\\server\\share\\temp");
    disk.MakeFolder("D:\\data");
    disk.MakeLink("\\\\server\\share\\temp\\link", "D:\\data");
    CHECK(links.AllowRemoval(folders, "\\\\server\\share\\temp\\a.tmp"));
    CHECK_FALSE(links.AllowRemoval(folders, "\\\\server\\share\\temp\\link\\a.tmp"));
    links.Add(folders, "\\\\server\\share\\temp\\link");
    CHECK(links.AllowRemoval(folders, "\\\\server\\share\\temp\\link\\a.tmp"));
}

TEST_CASE_FIXTURE(KnownLinksFixture, "a server and its share are looked at by nobody") {
    links.AllowRemoval(folders, "\\\\server\\share\\a.tmp");
    CHECK(machine.journal.Calls("GetFileAttributesExW").empty());
}
