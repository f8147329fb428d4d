#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "endtoend/lines.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

struct Known {
    const char* name;
    const char* windowClass;
    const char* caption;
};

const Known WindowButtons[] = {
    {"cmdApply", "chameleonButton", "Übernehmen"},
    {"cmdSetAllOptimal", "chameleonButton", "AutoTuning"},
    {"cmdSysInfo", "chameleonButton", nullptr},
    {"cmdHilfe", "chameleonButton", nullptr},
    {"cmdAbout", "chameleonButton", nullptr},
    {"cmdEnd", "chameleonButton", nullptr},
};

const Known OnSystemPage[] = {
    {"lblTuning", "Static", "Windows Tuning #1"},
    {"fraMemory", "Button", "System Boosts"},
    {"fraAutoLogin", "Button", " "},
    {"fraSystemFixes", "Button", "System Fixes"},
    {"fraTaskBar", "Button", "Windows Taskbar Transparenz"},
    {"Frame7", "Button", "Anzeigetempo Startmenü  (Default = 400)"},
    {"fraOSVersion", "Button", "OS Information"},
    {"txtLevelValue", "Edit", nullptr},
    {"chkIcons", "Button", "Transparente Icons"},
    {"Level", "msctls_trackbar32", nullptr},
    {"sldStartmenu", "msctls_trackbar32", nullptr},
    {"lblALName", "Static", "Username"},
    {"lblALPassword", "Static", "Passwort"},
    {"lblALDomain", "Static", "Domäne"},
    {"lblOSName", "Static", "OS Name"},
    {"Label3", "Static", "ProductID"},
    {"Label4", "Static", "Reg. User"},
    {"Label5", "Static", "Reg. Firma"},
    {"lblOSVersion", "Static", "Version"},
    {"lblBuild", "Static", "build"},
    {"lblSPLabel", "Static", "SP"},
    {"cmdFreeMemory", "chameleonButton", nullptr},
    {"cmdOptimal", "chameleonButton", "Empfohlen"},
    {"cmdNormal", "chameleonButton", "Standard"},
};

const Known OnUtilitiesPage[] = {
    {"lblUtilities", "Static", nullptr},
    {"chkTrayIcon", "Button", "Minimieren -> Tray Icon"},
    {"chkCreateAutoStart", "Button", "Zum Autostart hinzufügen"},
    {"chkMinimzeAfterStart", "Button", "Nach Start minimieren"},
    {"chkRebootQuestion", "Button", "Neustart ohne Nachfrage"},
    {"chkForceReboot", "Button", "Neustart \"erzwingen\""},
    {"optAtomUhr", "Button", nullptr},
    {"optSynServer", "Button", nullptr},
    {"txtSyncServer", "Edit", nullptr},
};

template <std::size_t Count>
void CheckVisible(const Program& program, const Known (&controls)[Count]) {
    for (const Known& known : controls) {
        CAPTURE(known.name);
        const HWND window = program.Wait(known.name);
        CHECK(ClassOf(window) == known.windowClass);
        if (known.caption) CHECK(WithoutMarks(TextOf(window)) == known.caption);
    }
}

// Neither form nor control: the pages that hold the controls, and what the system's tab control,
// combo boxes and lists bring along.
bool IsPart(HWND window) {
    const std::string parent = ClassOf(GetParent(window));
    return ClassOf(window) == "QuillmorePage" || parent == "SysTabControl32" ||
           parent == "ComboBox" || parent == "SysListView32";
}

TEST_CASE("every window of the program that is a form or a control carries its own name") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    std::vector<std::string> nameless;
    std::vector<std::string> doubled;
    std::set<std::string> names;
    const HWND form = program.Find("frmMain");
    for (HWND window : WindowsBelow(form)) {
        if (IsPart(window)) continue;
        const std::string name = NameOf(window);
        if (name.empty()) nameless.push_back(ClassOf(window) + " \"" + TextOf(window) + '"');
        if (!name.empty() && !names.insert(name).second) doubled.push_back(name);
    }
    for (HWND window : program.TopLevel()) {
        if (IsWindowVisible(window) && NameOf(window).empty()) nameless.push_back(ClassOf(window));
    }
    CHECK(Joined(nameless) == "");
    CHECK(Joined(doubled) == "");
    CHECK(names.size() > 50);
}

TEST_CASE("eight pages stand in their order, each with the captions' own blanks") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    CHECK(ClassOf(program.Find("SSTab1")) == "SysTabControl32");
    CHECK(program.TabCaptions() == std::vector<std::string>{" System", " Tweaks", " Pfade",
                                                            " CleanUp", "Sicherheit", " DFÜ",
                                                            " Shortcuts", " Utilities"});
}

TEST_CASE("each page shows its own controls, and the window's buttons stand under all of them") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const char* headings[] = {"lblTuning", "lblWindows2", nullptr,        "lblIECache",
                              "lblMisc",   "Label7",      "lblShortcuts", "lblUtilities"};
    for (int page = 0; page < 8; ++page) {
        CAPTURE(page);
        program.OpenTab(page);
        CheckVisible(program, WindowButtons);
        for (int other = 0; other < 8; ++other) {
            if (!headings[other]) continue;
            CAPTURE(headings[other]);
            if (other == page) {
                program.Wait(headings[other]);
            } else {
                program.WaitGone(headings[other]);
            }
        }
    }
    CheckVisible(program, OnUtilitiesPage);
    program.OpenTab(0);
    CheckVisible(program, OnSystemPage);
}

TEST_CASE("the window measures 666 by 528 pixels and snaps back to it") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const HWND form = program.Find("frmMain");
    RECT area = {};
    const auto fits = [&] {
        GetWindowRect(form, &area);
        return area.right - area.left == 666 && area.bottom - area.top == 528;
    };
    CHECK(fits());
    SetWindowPos(form, nullptr, 0, 0, 800, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Until("the window to snap back", fits);
}

}  // namespace
}  // namespace endtoend
