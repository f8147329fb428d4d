#include "tweaks/pathspage.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "controls/chameleonbutton.h"
#include "runtime/failure.h"
#include "tweaks/pagefixture.h"
#include "tweaks/pagelook.h"

using namespace tweak_tests;
using platform::simulated::FolderDialog;
using platform::simulated::ShownMessage;

namespace {

struct PathsPage : OnePage {
    PathsPage() : OnePage(tweaks::AddPathsPage) {}

    static std::string Member(const char* group, int index) {
        return std::string(group) + '(' + std::to_string(index) + ')';
    }
    toolkit::Label& Path(int index) {
        return form.Find<toolkit::Label>(Member("lblVerwaltung", index));
    }
    void Press(int index) {
        form.Find<controls::chameleonButton>(Member("cmdPath", index)).Press();
    }
    // The user opens the row's dialog, selects a folder and presses OK.
    void Choose(int index, const char* folder) {
        machine.shell.WhenBrowsing([=](FolderDialog& dialog) {
            dialog.Select(folder);
            return true;
        });
        Press(index);
    }
    // The next folder dialog fails.
    void FailNextDialog(int number) {
        machine.shell.WhenBrowsing([=](FolderDialog&) -> bool { throw runtime::Failure(number); });
    }
};

// How many lines the text takes when its words wrap at that width.
int LinesOf(const std::string& text, int width) {
    int lines = 1;
    std::string line;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size() - 1) + 1;
        const std::string word = text.substr(at, end - at);
        line += word;
        if (WideText().SizeOf(line, false).width > width) {
            ++lines;
            line = word;
        }
        at = end;
    }
    return lines;
}

toolkit::Rect AreaOf(const toolkit::Form& form, std::string_view name) {
    for (const toolkit::Placement& one : Placed(form)) {
        if (one.control->Name() == name) return one.area;
    }
    FAIL("not placed: " << name);
    return {};
}

}  // namespace

TEST_CASE_FIXTURE(PathsPage, "the page Pfade has all controls in the order in which one reads") {
    std::string names;
    for (const auto& control : form.Controls()) names += control->Name() + ' ';
    std::string expected = "lblSystemPaths Line3D(lblSystemPaths) lblHintSystemPaths ";
    for (int index = 0; index < 14; ++index) {
        for (const char* group : {"lblPathNames", "lblVerwaltung", "cmdPath"}) {
            expected += Member(group, index) + ' ';
        }
    }
    CHECK(names == expected + "cmdPathDefault ");
}

TEST_CASE_FIXTURE(PathsPage, "the page Pfade carries its captions") {
    const char* names[] = {"Verwaltung",     "Anwendungsdaten",  "Desktop",       "Dokumente",
                           "Favoriten ",     "Programme",        "Start Menü",    "Autostart",
                           "Vorlagen",       "Eigene Musik",     "Eigene Bilder", "Eigene Videos",
                           "Eigene Dateien", "Installationspfad"};
    for (int index = 0; index < 14; ++index) {
        CAPTURE(index);
        CHECK(form.FindControl(Member("lblPathNames", index))->Caption() == names[index]);
        CHECK(Path(index).Caption().empty());
        CHECK(form.FindControl(Member("cmdPath", index))->Caption() == "...");
        CHECK(form.FindControl(Member("cmdPath", index))->Enabled());
    }
    CHECK(form.FindControl("lblSystemPaths")->Caption() == "Systempfade ändern");
    CHECK(form.FindControl("cmdPathDefault")->Caption() == "Standard");
    CHECK(form.FindControl("lblHintSystemPaths")->Caption() ==
          "Achtung: Wenn Sie Systempfade ändern ist es möglich das bereits installierte Programme "
          "nicht mehr richtig funktionieren. Sie sollten dann per \"Standard\" Button den Standard "
          "wieder herstellen. Die Änderungen wirken sich nur auf Programme aus die NACH dem ändern "
          "installiert werden.");
}

TEST_CASE_FIXTURE(PathsPage,
                  "each of the buttons with the same caption tells which folder it chooses") {
    const auto tip = [&](int index) {
        return form.FindControl(Member("cmdPath", index))->ToolTip();
    };
    CHECK(tip(0) == "Ordner für Verwaltung auswählen");
    CHECK(tip(4) == "Ordner für Favoriten auswählen");
    CHECK(tip(13) == "Ordner für Installationspfad auswählen");
}

TEST_CASE_FIXTURE(PathsPage, "the page Pfade fits its area and no two controls overlap") {
    CheckFits(form);
}

TEST_CASE_FIXTURE(PathsPage, "every caption of the page Pfade has room, the default paths too") {
    tweaks::SetDefaultPaths(form, machine.systemFacts);
    const toolkit::Control& hint = *form.FindControl("lblHintSystemPaths");
    const toolkit::Rect room = AreaOf(form, hint.Name());
    CHECK(LinesOf(hint.Caption(), room.width) * WideText().SizeOf("x", false).height ==
          room.height);
    form.FindControl("lblHintSystemPaths")->SetCaption("");
    CheckCaptionsHaveRoom(form);
}

TEST_CASE_FIXTURE(PathsPage, "the page Pfade's own button stands where those of other pages do") {
    CheckAtBottomRight(form, "cmdPathDefault");
}

TEST_CASE_FIXTURE(PathsPage, "all paths begin below each other and are as wide") {
    const toolkit::Rect first = AreaOf(form, "lblVerwaltung(0)");
    for (int index = 1; index < 14; ++index) {
        const toolkit::Rect area = AreaOf(form, Member("lblVerwaltung", index));
        CHECK(area.left == first.left);
        CHECK(area.width == first.width);
    }
}

TEST_CASE_FIXTURE(PathsPage, "a path of any length or lines moves nothing and stays as it is") {
    const auto before = Placed(form);
    for (const std::string& path :
         {std::string(5000, 'x'), std::string("C:\\A\r\n\r\nB"), std::string("C:\\A&B & C")}) {
        Path(0).SetCaption(path);
        Path(13).SetCaption(path);
        const auto after = Placed(form);
        REQUIRE(after.size() == before.size());
        for (std::size_t i = 0; i < after.size(); ++i) CHECK(after[i].area == before[i].area);
        CHECK(Path(0).Caption() == path);
    }
}

TEST_CASE_FIXTURE(PathsPage,
                  "a folder chosen in the dialog becomes the row's path and no other's") {
    for (int index = 0; index < 14; ++index) Path(index).SetCaption("C:\\Alt");
    Choose(5, "D:\\Größe");
    for (int index = 0; index < 14; ++index) {
        CAPTURE(index);
        CHECK(Path(index).Caption() == (index == 5 ? "D:\\Größe" : "C:\\Alt"));
    }
}

TEST_CASE_FIXTURE(PathsPage, "the dialog belongs to the window and asks by the row's name") {
    machine.journal.Clear();
    Choose(0, "D:\\Daten");
    Choose(13, "D:\\Daten");
    CHECK(machine.journal.Calls("SHBrowseForFolderA") ==
          std::vector<std::string>{
              "SHBrowseForFolderA frmMain \"Bitte Ordner für Verwaltung auswählen\" 0x07 -> "
              "\"D:\\Daten\"",
              "SHBrowseForFolderA frmMain \"Bitte Ordner für Installationspfad auswählen\" 0x07 "
              "-> \"D:\\Daten\""});
}

TEST_CASE_FIXTURE(PathsPage, "the blank behind Favoriten gives the dialog two blanks, on purpose") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        CHECK(dialog.title == "Bitte Ordner für Favoriten  auswählen");
        return false;
    });
    Press(4);
}

TEST_CASE_FIXTURE(PathsPage, "the dialog takes the name and the path as they stand at the click") {
    form.FindControl("lblPathNames(2)")->SetCaption("Schreibtisch");
    Path(2).SetCaption("C:\\Mein Ordner");
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        CHECK(dialog.title == "Bitte Ordner für Schreibtisch auswählen");
        CHECK(dialog.SelectedPath() == "C:\\Mein Ordner");
        return true;
    });
    Press(2);
    CHECK(Path(2).Caption() == "C:\\Mein Ordner");
}

TEST_CASE_FIXTURE(PathsPage, "a cancelled dialog leaves the path as it is") {
    Path(3).SetCaption("C:\\Alt");
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select("D:\\Neu");
        return false;
    });
    Press(3);
    CHECK(Path(3).Caption() == "C:\\Alt");
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(PathsPage, "a place without a path counts as cancelled") {
    Path(3).SetCaption("C:\\Alt");
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select(std::nullopt);
        return true;
    });
    Press(3);
    CHECK(Path(3).Caption() == "C:\\Alt");
}

TEST_CASE_FIXTURE(PathsPage, "choosing a folder writes nothing to the system and asks nothing") {
    machine.journal.Clear();
    Choose(9, "D:\\Musik");
    CHECK(machine.journal.Calls("SendMessageA").size() > 0);
    CHECK(machine.journal.Calls("RegSetValueExA").empty());
    CHECK(machine.registry.Dump().empty());
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(PathsPage, "a failure of the dialog is told in a box with its number") {
    Path(1).SetCaption("C:\\Alt");
    FailNextDialog(runtime::PathNotFound);
    CHECK_NOTHROW(Press(1));
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{{"Fehler 76", runtime::DescriptionOf(76), 16}});
    CHECK(Path(1).Caption() == "C:\\Alt");
    FailNextDialog(runtime::InvalidProcedureCall);
    Press(1);
    REQUIRE(machine.messages.Shown().size() == 2);
    CHECK(machine.messages.Shown()[1] == ShownMessage{"Fehler 5", runtime::DescriptionOf(5), 16});
}

TEST_CASE_FIXTURE(PathsPage, "a failure numbered 18 is passed over in silence, on purpose") {
    Path(1).SetCaption("C:\\Alt");
    FailNextDialog(18);
    CHECK_NOTHROW(Press(1));
    CHECK(machine.messages.Shown().empty());
    CHECK(Path(1).Caption() == "C:\\Alt");
}
