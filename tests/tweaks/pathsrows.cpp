// The oddities of the page Pfade in the two passes, each by its name.
#include <doctest/doctest.h>

#include <algorithm>

#include "tweaks/catalogue.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

constexpr std::string_view FoldersKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::string_view UserFoldersKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
constexpr std::string_view WindowsKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

constexpr const char* OfAllUsers[] = {"Common Administrative Tools",
                                      "Common AppData",
                                      "Common Desktop",
                                      "Common Documents",
                                      "Common Favorites",
                                      "Common Programs",
                                      "Common Start Menu",
                                      "Common Startup",
                                      "Common Templates"};
constexpr const char* OfTheUser[] = {"My Music", "My Pictures", "My Video", "Personal"};

struct PathRows : Options {
    toolkit::Label& Path(int index) {
        return form.Find<toolkit::Label>("lblVerwaltung(" + std::to_string(index) + ")");
    }
    void SetAll(const std::string& path) {
        for (int index = 0; index < 14; ++index) Path(index).SetCaption(path);
    }
    void Write() {
        FillNumbers();
        machine.journal.Clear();
        passes.Write();
    }
    // Every path as it is stored, in the order of the rows.
    std::vector<std::optional<StoredValue>> Stored() {
        std::vector<std::optional<StoredValue>> stored;
        for (const char* value : OfAllUsers) stored.push_back(OfMachine(FoldersKey, value));
        for (const char* value : OfTheUser) stored.push_back(OfUser(FoldersKey, value));
        stored.push_back(OfMachine(WindowsKey, "ProgramFilesDir"));
        return stored;
    }
    // How many calls are about a value of that name.
    std::ptrdiff_t Calls(const char* call, const std::string& value) {
        const auto calls = machine.journal.Calls(call);
        return std::count_if(calls.begin(), calls.end(), [&](const std::string& line) {
            return line.find('"' + value + '"') != std::string::npos;
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(PathRows, "each row reads its own value") {
    int index = 0;
    for (const char* value : OfAllUsers) {
        PutMachine(FoldersKey, value, TextValue("C:\\" + std::to_string(index++)));
    }
    for (const char* value : OfTheUser) {
        PutUser(FoldersKey, value, TextValue("C:\\" + std::to_string(index++)));
    }
    PutMachine(WindowsKey, "ProgramFilesDir", TextValue("C:\\13"));
    passes.Read();
    for (int row = 0; row < 14; ++row) CHECK(Path(row).Caption() == "C:\\" + std::to_string(row));
}

TEST_CASE_FIXTURE(PathRows, "each row writes its own value") {
    for (int row = 0; row < 14; ++row) Path(row).SetCaption("D:\\" + std::to_string(row));
    Write();
    const auto stored = Stored();
    for (std::size_t row = 0; row < 14; ++row) {
        CHECK(stored[row] == BareTextValue("D:\\" + std::to_string(row)));
    }
}

TEST_CASE_FIXTURE(PathRows, "an absent path is shown empty and then written empty, on purpose") {
    SetAll("x");
    passes.Read();
    for (int row = 0; row < 14; ++row) CHECK(Path(row).Caption().empty());
    Write();
    for (const auto& stored : Stored()) CHECK(stored == BareTextValue(""));
}

TEST_CASE_FIXTURE(PathRows, "a path that has not changed is written all the same") {
    PutUser(FoldersKey, "Personal", BareTextValue("C:\\Eigene"));
    passes.Read();
    Write();
    CHECK(Calls("RegSetValueExA", "Personal") == 1);
    Write();
    CHECK(Calls("RegSetValueExA", "Personal") == 1);
    CHECK(OfUser(FoldersKey, "Personal") == BareTextValue("C:\\Eigene"));
}

TEST_CASE_FIXTURE(PathRows, "no path is examined, on purpose") {
    for (const std::string& path :
         {std::string("kein Pfad"), std::string("Q:\\gibt es nicht"), std::string("a<b>|?*\""),
          std::string("C:\\Tom & Jerry"), std::string("C:\\A && B"), std::string("\\\\Rechner\\x"),
          std::string(" C:\\x "), "C:\\" + std::string(3000, 'x')}) {
        CAPTURE(path);
        PutMachine(FoldersKey, "Common Desktop", TextValue(path));
        passes.Read();
        CHECK(Path(2).Caption() == path);
        Write();
        CHECK(OfMachine(FoldersKey, "Common Desktop") == BareTextValue(path));
    }
}

TEST_CASE_FIXTURE(PathRows, "a number in a path's place is written back as its digits") {
    PutMachine(WindowsKey, "ProgramFilesDir", DwordValue(23));
    passes.Read();
    CHECK(Path(13).Caption() == "23");
    Write();
    CHECK(OfMachine(WindowsKey, "ProgramFilesDir") == BareTextValue("23"));
}

TEST_CASE_FIXTURE(PathRows, "a path with variables is shown and written unexpanded") {
    StoredValue expandable = TextValue("%USERPROFILE%\\Eigene Dateien");
    expandable.type = 2;
    PutUser(FoldersKey, "Personal", expandable);
    passes.Read();
    CHECK(Path(12).Caption() == "%USERPROFILE%\\Eigene Dateien");
    Write();
    CHECK(OfUser(FoldersKey, "Personal") == BareTextValue("%USERPROFILE%\\Eigene Dateien"));
}

TEST_CASE_FIXTURE(PathRows, "the key User Shell Folders is neither read nor written, on purpose") {
    PutUser(UserFoldersKey, "Personal", TextValue("%USERPROFILE%\\Eigene Dateien"));
    PutMachine(UserFoldersKey, "Common Desktop", TextValue("C:\\Alt"));
    machine.journal.Clear();
    passes.Read();
    CHECK(Path(12).Caption().empty());
    CHECK(Path(2).Caption().empty());
    CHECK(machine.journal.Text().find("User Shell Folders") == std::string::npos);
    SetAll("D:\\Neu");
    Write();
    CHECK(machine.journal.Text().find("User Shell Folders") == std::string::npos);
    CHECK(OfUser(UserFoldersKey, "Personal") == TextValue("%USERPROFILE%\\Eigene Dateien"));
    CHECK(OfMachine(UserFoldersKey, "Common Desktop") == TextValue("C:\\Alt"));
}

TEST_CASE_FIXTURE(PathRows, "a key that may not be read shows empty paths and says nothing") {
    PutMachine(FoldersKey, "Common Desktop", TextValue("C:\\Alt"));
    PutUser(FoldersKey, "Personal", TextValue("C:\\Eigene"));
    machine.registry.Deny(Service::LocalMachine, FoldersKey);
    SetAll("x");
    passes.Read();
    CHECK(Path(2).Caption().empty());
    CHECK(Path(12).Caption() == "C:\\Eigene");
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(PathRows,
                  "without rights on the machine's key only the user's paths are written") {
    PutMachine(FoldersKey, "Common Desktop", TextValue("C:\\Alt"));
    machine.registry.Deny(Service::LocalMachine, FoldersKey, Service::MaySetValue);
    SetAll("D:\\Neu");
    Write();
    CHECK(OfMachine(FoldersKey, "Common Desktop") == TextValue("C:\\Alt"));
    CHECK_FALSE(OfMachine(FoldersKey, "Common Programs").has_value());
    for (const char* value : OfTheUser) {
        CHECK(OfUser(FoldersKey, value) == BareTextValue("D:\\Neu"));
    }
    CHECK(OfMachine(WindowsKey, "ProgramFilesDir") == BareTextValue("D:\\Neu"));
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(PathRows, "the default paths reach the system with the next write only") {
    PutMachine(FoldersKey, "Common Desktop", TextValue("C:\\Alt"));
    passes.Read();
    const auto before = machine.registry.Dump();
    machine.systemFacts.userName = "Max Müller";
    machine.systemFacts.windowsDirectory = "D:\\WINDOWS";
    tweaks::SetDefaultPaths(form, machine.systemFacts);
    CHECK(machine.registry.Dump() == before);
    Write();
    CHECK(OfMachine(FoldersKey, "Common Desktop") ==
          BareTextValue("C:\\Dokumente und Einstellungen\\All Users\\Desktop"));
    CHECK(OfUser(FoldersKey, "My Music") ==
          BareTextValue("C:\\Dokumente und Einstellungen\\Max Müller\\Eigene Dateien"
                        "\\Eigene Musik"));
    CHECK(OfMachine(WindowsKey, "ProgramFilesDir") == BareTextValue("D:\\Programme"));
}

TEST_CASE_FIXTURE(PathRows,
                  "the last path is written apart from the others, behind the disk test") {
    Write();
    std::vector<std::string> order;
    for (const std::string& line : machine.journal.Calls("RegSetValueExA")) {
        for (const char* value : {"Common Administrative Tools", "Personal", "NoLowDiskSpaceChecks",
                                  "ProgramFilesDir", "ProductName"}) {
            if (line.find('"' + std::string(value) + '"') != std::string::npos) {
                order.push_back(value);
            }
        }
    }
    CHECK(order == std::vector<std::string>{"Common Administrative Tools", "Personal",
                                            "NoLowDiskSpaceChecks", "ProgramFilesDir",
                                            "ProductName"});
}
