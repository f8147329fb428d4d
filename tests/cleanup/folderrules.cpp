#include "cleanup/folderrules.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

namespace {

struct FolderRulesFixture {
    platform::simulated::Machine machine;

    // Only what a test names can be the reason of a hit.
    FolderRulesFixture() {
        machine.shell.specialFolders[9] = "C:\\Profil\\An Senden";
        machine.systemFacts.windowsDirectory = "D:\\Win";
        machine.systemFacts.systemDirectory = "D:\\Win\\Sys";
    }
    bool Excluded(const char* path) {
        return cleanup::FolderRules(machine.services).IsExcludedFolder(path);
    }
};

}  // namespace

TEST_CASE_FIXTURE(FolderRulesFixture, "an ordinary folder is searched") {
    for (const char* path : {"C:\\", "C:\\Profil", "D:\\Win", "D:\\Win\\Temp", "C:\\Größe"}) {
        CHECK_FALSE(Excluded(path));
    }
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rule 1: the user's SendTo folder, in any case, but not what is below") {
    CHECK(Excluded("C:\\Profil\\An Senden"));
    CHECK(Excluded("c:\\PROFIL\\an senden"));
    CHECK_FALSE(Excluded("C:\\Profil\\An Senden\\x"));
    CHECK_FALSE(Excluded("C:\\Profil\\An Sende"));
}

TEST_CASE_FIXTURE(FolderRulesFixture, "rule 2: SendTo anywhere in the path, in any case") {
    CHECK(Excluded("E:\\x\\SendTo"));
    CHECK(Excluded("E:\\SendToBackup\\x"));
    CHECK(Excluded("E:\\mysendto"));
    CHECK_FALSE(Excluded("E:\\Send To"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rule 3: the German profile of all users by its first 40 characters") {
    CHECK(Excluded("C:\\Dokumente und Einstellungen\\All Users"));
    CHECK(Excluded("c:\\dokumente und einstellungen\\ALL USERS\\Anwendungsdaten"));
    CHECK(Excluded("C:\\Dokumente und Einstellungen\\All Users2"));
    CHECK_FALSE(Excluded("C:\\Dokumente und Einstellungen\\All User"));
    CHECK_FALSE(Excluded("D:\\Dokumente und Einstellungen\\All Users"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rule 4: the English profile of all users by its first 35 characters") {
    CHECK(Excluded("C:\\Documents and Settings\\All Users"));
    CHECK(Excluded("C:\\DOCUMENTS AND SETTINGS\\all users\\x"));
    CHECK_FALSE(Excluded("C:\\Documents and Settings\\All User"));
    CHECK_FALSE(Excluded("D:\\Documents and Settings\\All Users"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rule 5: All Users in the Windows directory, but not what is below") {
    CHECK(Excluded("D:\\Win\\All Users"));
    CHECK(Excluded("d:\\WIN\\all users"));
    CHECK_FALSE(Excluded("D:\\Win\\All Users\\x"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rule 6, which rule 2 goes before: SendTo in the Windows directory") {
    CHECK(Excluded("D:\\Win\\SendTo"));
    CHECK(Excluded("d:\\win\\SENDTO"));
}

TEST_CASE_FIXTURE(FolderRulesFixture, "rule 7: the system directory and whatever begins like it") {
    CHECK(Excluded("D:\\Win\\Sys"));
    CHECK(Excluded("d:\\win\\sys\\drivers\\etc"));
    CHECK(Excluded("D:\\Win\\System"));
    CHECK_FALSE(Excluded("D:\\Win\\Sy"));
}

TEST_CASE_FIXTURE(
    FolderRulesFixture,
    "rules 8 to 10, which rule 7 goes before: three folders of the system directory") {
    for (const char* path : {"D:\\Win\\Sys\\Security", "D:\\Win\\Sys\\CatRoot2\\x",
                             "D:\\Win\\Sys\\USMT", "d:\\win\\sys\\usmt\\x"}) {
        CHECK(Excluded(path));
    }
}

TEST_CASE_FIXTURE(FolderRulesFixture, "a system directory that is not told leaves out everything") {
    machine.systemFacts.systemDirectory = "";
    CHECK(Excluded("C:\\"));
    CHECK(Excluded("E:\\x"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "rules 11 to 15: five parts of paths, in small letters only") {
    CHECK(Excluded("c:\\x\\symantec shared\\virusdefs"));
    CHECK_FALSE(Excluded("C:\\Programme\\Symantec Shared\\VirusDefs"));
    CHECK(Excluded("c:\\paprport\\data\\x"));
    CHECK_FALSE(Excluded("c:\\PaprPort\\data\\x"));
    CHECK(Excluded("c:\\oldchaos32x"));
    CHECK_FALSE(Excluded("c:\\Chaos32"));
    CHECK(Excluded("c:\\microsoft\\office\\data"));
    CHECK_FALSE(Excluded("c:\\Microsoft\\Office\\Data"));
    CHECK(Excluded("c:\\win\\resources\\themes\\luna"));
    CHECK_FALSE(Excluded("c:\\WINDOWS\\Resources\\Themes"));
}

TEST_CASE_FIXTURE(FolderRulesFixture,
                  "folders that the system does not tell exclude nothing by themselves") {
    machine.shell.specialFolders.erase(9);
    machine.systemFacts.windowsDirectory = "";
    CHECK_FALSE(Excluded("C:\\x"));
    CHECK(Excluded("\\All Users"));
}
