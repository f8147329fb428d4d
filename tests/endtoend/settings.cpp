#include <doctest/doctest.h>

#include "endtoend/registrystate.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr char RunKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

RECT PlaceOfForm(const Program& program) {
    RECT area = {};
    GetWindowRect(program.Wait("frmMain"), &area);
    return area;
}

int TabOpenedWith(const std::string& stored) {
    const Workplace workplace;
    workplace.Store("Options", "Tab", stored);
    const OpenProgram program(workplace);
    return program.CurrentTab();
}

TEST_CASE("a store full of nonsense opens the window as designed") {
    RECT designed = {};
    {
        const Workplace workplace;
        const OpenProgram program(workplace);
        designed = PlaceOfForm(program);
    }
    const Workplace workplace;
    for (const char* key : {"State", "Left", "Top", "Tab", "TrayIcon", "MinimizeAfterStart",
                            "RebootQuestion", "ForceReboot", "SyncAtom", "SyncServer"}) {
        workplace.Store("Options", key, "Unsinn ü");
    }
    workplace.Store("TaskBar", "Luminance", "Unsinn");
    workplace.Store("WinComponents", "Show", "Unsinn");
    const OpenProgram program(workplace);
    const RECT place = PlaceOfForm(program);
    CHECK(EqualRect(&place, &designed));
    CHECK_FALSE(IsZoomed(program.Find("frmMain")));
    CHECK(program.CurrentTab() == 0);
    program.OpenTab(7);
    CHECK_FALSE(program.Checked("chkTrayIcon"));
    CHECK_FALSE(program.Checked("chkMinimzeAfterStart"));
    CHECK_FALSE(program.Checked("chkRebootQuestion"));
    CHECK_FALSE(program.Checked("chkForceReboot"));
    CHECK(program.Box().title == "");
    CHECK(workplace.Log() == "");
}

TEST_CASE("a stored Left of -120 and Top of 300 open the window at 1 and 300 twips") {
    const Workplace workplace;
    workplace.Store("Options", "Left", "-120");
    workplace.Store("Options", "Top", "300");
    const OpenProgram program(workplace);
    // 15 twips to the pixel; one twip is none yet.
    CHECK(PlaceOfForm(program).left == 0);
    CHECK(PlaceOfForm(program).top == 20);
}

TEST_CASE("the stored tab opens when there is one, and else the first") {
    CHECK(TabOpenedWith("5") == 5);
    CHECK(TabOpenedWith("8") == 0);
    CHECK(TabOpenedWith("9") == 0);
    CHECK(TabOpenedWith("-1") == 0);
}

TEST_CASE("the window has its fixed size whatever is stored") {
    const Workplace workplace;
    workplace.Store("Options", "Width", "3000");
    workplace.Store("Options", "Height", "3000");
    const OpenProgram program(workplace);
    const RECT place = PlaceOfForm(program);
    CHECK(place.right - place.left == 666);
    CHECK(place.bottom - place.top == 528);
}

TEST_CASE("closing stores the window and the program's own options") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(7);
    program.SetText("txtSyncServer", "zeit.beispiel.de");
    program.SetChecked("chkForceReboot", true);
    const RECT place = PlaceOfForm(program);
    program.CloseAndWait();
    const auto stored = [&](const char* key) { return workplace.Stored("Options", key); };
    CHECK(stored("State") == "0");
    CHECK(stored("Left") == std::to_string(place.left * 15));
    CHECK(stored("Top") == std::to_string(place.top * 15));
    CHECK(stored("Width") == "9990");
    CHECK(stored("Height") == "7920");
    CHECK(stored("ServerName") == "zeit.beispiel.de");
    CHECK(stored("Tab") == "7");
    CHECK(stored("TrayIcon") == "0");
    CHECK(stored("AutoStart") == "0");
    CHECK(stored("MinimizeAfterStart") == "0");
    CHECK(stored("RebootQuestion") == "0");
    CHECK(stored("ForceReboot") == "1");
    CHECK(stored("Accepted") == "Yes");
    CHECK(stored("SyncAtom") == "(absent)");
    CHECK(stored("SyncServer") == "(absent)");
}

TEST_CASE("the program's own options survive a restart") {
    const Workplace workplace;
    {
        const OpenProgram program(workplace);
        program.OpenTab(7);
        program.SetText("txtSyncServer", "Uhrenstübchen");
        program.SetChecked("chkRebootQuestion", true);
        program.SetChecked("chkCreateAutoStart", true);
        program.CloseAndWait();
    }
    CHECK(ReadValue({"HKCU", RunKey, "Quillmore"}).has_value());
    {
        const OpenProgram program(workplace);
        CHECK(program.CurrentTab() == 7);
        CHECK(program.Text("txtSyncServer") == "Uhrenstübchen");
        CHECK(program.Checked("chkRebootQuestion"));
        CHECK(program.Checked("chkCreateAutoStart"));
        CHECK_FALSE(program.Checked("chkForceReboot"));
        program.SetChecked("chkCreateAutoStart", false);
        program.CloseAndWait();
    }
    CHECK_FALSE(ReadValue({"HKCU", RunKey, "Quillmore"}).has_value());
}

TEST_CASE("the time source is a store entry that only a hand can make") {
    const Workplace workplace;
    workplace.Store("Options", "SyncServer", "1");
    const OpenProgram program(workplace);
    program.OpenTab(7);
    CHECK(program.Checked("optSynServer"));
    CHECK_FALSE(program.Checked("optAtomUhr"));
}

TEST_CASE("F4 closes the window") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.PressKey("frmMain", VK_F4);
    CHECK(program.WaitForEnd() == 0);
    CHECK(workplace.Stored("Options", "Tab") == "0");
}

TEST_CASE("cmdEnd closes the window") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.Click("cmdEnd");
    CHECK(program.WaitForEnd() == 0);
    CHECK(workplace.Stored("Options", "Tab") == "0");
}

}  // namespace
}  // namespace endtoend
