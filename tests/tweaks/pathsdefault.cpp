// The default paths, letter by letter.
#include <doctest/doctest.h>

#include <algorithm>

#include "runtime/failure.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;
using Paths = std::vector<std::string>;

namespace {

struct DefaultPaths : OnePage {
    DefaultPaths() : OnePage(tweaks::AddPathsPage) {}

    toolkit::Label& Path(int index) {
        return form.Find<toolkit::Label>("lblVerwaltung(" + std::to_string(index) + ")");
    }
    Paths Captions() {
        Paths captions;
        for (int index = 0; index < 14; ++index) captions.push_back(Path(index).Caption());
        return captions;
    }
    Paths Set() {
        tweaks::SetDefaultPaths(form, machine.systemFacts);
        return Captions();
    }
};

// Does something when the control has changed.
struct Watcher : toolkit::ControlView {
    std::function<void()> onCaption;

    void Refresh(toolkit::Aspect what) override {
        if (what == toolkit::Aspect::Caption) onCaption();
    }
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}
};

}  // namespace

TEST_CASE_FIXTURE(DefaultPaths, "the default paths are those of a German Windows") {
    CHECK(Set() ==
          Paths{"C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Verwaltung",
                "C:\\Dokumente und Einstellungen\\All Users\\Anwendungsdaten",
                "C:\\Dokumente und Einstellungen\\All Users\\Desktop",
                "C:\\Dokumente und Einstellungen\\All Users\\Dokumente",
                "C:\\Dokumente und Einstellungen\\All Users\\Favoriten",
                "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme",
                "C:\\Dokumente und Einstellungen\\All Users\\Startmenü",
                "C:\\Dokumente und Einstellungen\\All Users\\Startmenü\\Programme\\Autostart",
                "C:\\Dokumente und Einstellungen\\All Users\\Vorlagen",
                "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\Eigene Musik",
                "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\Eigene Bilder",
                "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\Eigene Videos",
                "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien", "C:\\Programme"});
}

TEST_CASE_FIXTURE(DefaultPaths, "only the last row follows Windows to drive D, on purpose") {
    const Paths onDriveC = Set();
    machine.systemFacts.windowsDirectory = "D:\\WINDOWS";
    Paths expected = onDriveC;
    expected[13] = "D:\\Programme";
    CHECK(Set() == expected);
}

TEST_CASE_FIXTURE(DefaultPaths, "of a Windows directory with blanks only the drive counts") {
    machine.systemFacts.windowsDirectory = "E:\\Mein Windows XP";
    CHECK(Set()[13] == "E:\\Programme");
}

TEST_CASE_FIXTURE(DefaultPaths, "a Windows directory that is not told leaves no drive") {
    SUBCASE("empty") {
        machine.systemFacts.windowsDirectory = "";
    }
    SUBCASE("longer than its buffer") {
        machine.systemFacts.windowsDirectory = "D:\\" + std::string(252, 'w');
    }
    SUBCASE("denied") {
        machine.faults.FailAll("GetWindowsDirectoryA", 5);
    }
    CHECK(Set()[13] == "\\Programme");
}

TEST_CASE_FIXTURE(DefaultPaths, "the first two characters are characters, not bytes") {
    machine.systemFacts.windowsDirectory = "Ä:\\WINDOWS";
    CHECK(Set()[13] == "Ä:\\Programme");
}

TEST_CASE_FIXTURE(DefaultPaths, "a user's name goes into the path as it is") {
    for (const std::string& name : {std::string("Max Müller"), std::string(" Max "),
                                    std::string("M&M"), std::string(253, 'n') + "ü"}) {
        CAPTURE(name);
        machine.systemFacts.userName = name;
        CHECK(Set()[12] == "C:\\Dokumente und Einstellungen\\" + name + "\\Eigene Dateien");
    }
}

TEST_CASE_FIXTURE(DefaultPaths, "a name that the system does not tell leaves an empty folder") {
    SUBCASE("255 characters, for which the buffer has no room") {
        machine.systemFacts.userName = std::string(255, 'n');
    }
    SUBCASE("no name") {
        machine.systemFacts.userName = "";
    }
    SUBCASE("denied") {
        machine.faults.FailAll("GetUserNameA", 5);
    }
    const Paths paths = Set();
    CHECK(paths[9] == "C:\\Dokumente und Einstellungen\\\\Eigene Dateien\\Eigene Musik");
    CHECK(paths[10] == "C:\\Dokumente und Einstellungen\\\\Eigene Dateien\\Eigene Bilder");
    CHECK(paths[11] == "C:\\Dokumente und Einstellungen\\\\Eigene Dateien\\Eigene Videos");
    CHECK(paths[12] == "C:\\Dokumente und Einstellungen\\\\Eigene Dateien");
    CHECK(paths[13] == "C:\\Programme");
}

TEST_CASE_FIXTURE(DefaultPaths, "the user's name is asked for anew by each of his four rows") {
    machine.journal.Clear();
    Set();
    CHECK(machine.journal.Lines() ==
          Paths{"GetUserNameA -> \"Besitzer\"", "GetUserNameA -> \"Besitzer\"",
                "GetUserNameA -> \"Besitzer\"", "GetUserNameA -> \"Besitzer\"",
                "GetWindowsDirectoryA -> \"C:\\WINDOWS\""});

    Watcher watcher;
    watcher.onCaption = [&] { machine.systemFacts.userName = "Zweiter"; };
    Path(10).SetCaption("");
    Path(10).SetView(&watcher);
    const Paths paths = Set();
    Path(10).SetView(nullptr);
    CHECK(paths[9].find("\\Besitzer\\") != std::string::npos);
    CHECK(paths[10].find("\\Besitzer\\") != std::string::npos);
    CHECK(paths[11].find("\\Zweiter\\") != std::string::npos);
    CHECK(paths[12].find("\\Zweiter\\") != std::string::npos);
}

TEST_CASE_FIXTURE(DefaultPaths, "the paths are set in the order of the rows, up to a failure") {
    Watcher watcher;
    watcher.onCaption = [] { throw runtime::Failure(runtime::OutOfMemory); };
    Path(5).SetView(&watcher);
    CHECK_THROWS_AS(Set(), runtime::Failure);
    Path(5).SetView(nullptr);
    for (int index = 0; index < 14; ++index) {
        CAPTURE(index);
        CHECK(Path(index).Caption().empty() == (index > 5));
    }
}

TEST_CASE_FIXTURE(DefaultPaths, "the default paths take the place of any others") {
    for (int index = 0; index < 14; ++index) Path(index).SetCaption("D:\\Anders");
    const Paths paths = Set();
    CHECK(std::count(paths.begin(), paths.end(), "D:\\Anders") == 0);
}
