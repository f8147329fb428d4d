#include "tweaks/helptexts.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "app/program.h"

using namespace app_test;

namespace {

struct Helped : Program {
    Helped() {
        machine.registry.MakeKey(platform::Registry::LocalMachine, SystemKey);
        REQUIRE(Start());
    }

    const platform::simulated::ToolTips::Window& Tips() const { return machine.toolTips.At(1); }
    std::string TipOf(const char* name) {
        const auto handle = machine.forms.HandleOf(*form->FindControl(name));
        REQUIRE(handle != 0);
        const auto* tool = Tips().Find(handle, handle);
        return tool ? tool->text : "none";
    }
    const std::vector<std::string>& Lines() const { return machine.journal.Lines(); }
    // Where the journal's first line that holds the text stands.
    std::size_t Place(const std::string& text) const {
        const auto found = std::find_if(Lines().begin(), Lines().end(), [&](const auto& line) {
            return line.find(text) != std::string::npos;
        });
        REQUIRE(found != Lines().end());
        return static_cast<std::size_t>(found - Lines().begin());
    }
};

}  // namespace

TEST_CASE("start-up gives each control of the list its text, in the list's order") {
    Helped program;
    REQUIRE(program.machine.toolTips.OpenWindows() == 1);
    const auto& tools = program.Tips().tools;
    const auto rows = tweaks::HelpTexts();
    REQUIRE(tools.size() == rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        CAPTURE(rows[i].control);
        const toolkit::Control* control = program.form->FindControl(rows[i].control);
        REQUIRE(control);
        const auto handle = program.machine.forms.HandleOf(*control);
        CHECK(handle != 0);
        CHECK(tools[i].record.hwnd == handle);
        CHECK(tools[i].record.uId == handle);
        CHECK(tools[i].record.uFlags == 17);
        CHECK(tools[i].text == rows[i].text);
    }
}

TEST_CASE("the tips are set up between the service pack and the server's name") {
    Helped program;
    const std::size_t start = program.Place("InitCommonControlsEx");
    CHECK(program.Place("CSDVersion") < start);
    CHECK(program.Place("\"ServerName\"") > start);
    // Behind the object's own nine calls.
    const std::vector<std::string> setUp(
        program.Lines().begin() + static_cast<std::ptrdiff_t>(start) + 9,
        program.Lines().begin() + static_cast<std::ptrdiff_t>(start) + 13);
    CHECK(setUp == std::vector<std::string>{
                       "GetWindowLongA #1 GWL_STYLE -> 0x43", "SetWindowLongA #1 GWL_STYLE 0x03",
                       "SendMessageA #1 1027 3 1000", "SendMessageA #1 1027 2 3320000"});
    CHECK(program.Lines()[start + 13].starts_with("SendMessageA #1 1028 size 40 flags 17 "));
}

TEST_CASE("the program's tips are plain and keep the object's width and colours") {
    Helped program;
    CHECK(program.Tips().style == 0x03);
    CHECK(program.Tips().delayTime == 1000);
    CHECK(program.Tips().visibleTime == 3320000);
    CHECK(program.Tips().width == 300);
    CHECK(program.Tips().backColour == 0xEEFFFF);
    CHECK(program.Tips().textColour == 0);
    CHECK(program.Tips().font == 0);
}

TEST_CASE("the slider of the level has a tip, its box and the drive list have none") {
    Helped program;
    CHECK(program.TipOf("Level").starts_with("Stellt ein"));
    CHECK(program.TipOf("txtLevelValue") == "none");
    CHECK(program.TipOf("drvSelect") == "none");
    CHECK(program.TipOf("sldStartmenu") == program.TipOf("txtStartmenu"));
}

TEST_CASE("a system without tooltip windows starts the program all the same") {
    Program program;
    program.machine.faults.FailAll("CreateWindowExA", 8);
    CHECK(program.Start());
    CHECK(program.Close());
}

TEST_CASE("closing releases the tips behind the stored tab and before the tray icon goes") {
    Helped program;
    program.machine.journal.Clear();
    CHECK(program.Close());
    const std::size_t released = program.Place("DestroyWindow #1");
    CHECK(program.Place("\"Tab\"") < released);
    CHECK(program.Place("Tray.SetShown 0") == released + 1);
    CHECK(program.machine.toolTips.OpenWindows() == 0);
}

TEST_CASE("a closing that stops on its way releases the tips before the window goes") {
    Helped program;
    program.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    program.Close();
    CHECK(program.Place("DestroyWindow #1") < program.Place("CloseForm frmMain"));
    CHECK(program.machine.journal.Calls("DestroyWindow").size() == 1);
}

TEST_CASE("a program that ends before its window is there makes no tips") {
    Program program;
    program.machine.settingsStore.Put("Options", "Accepted", "No");
    program.machine.forms.WhenModal("frmFirstInfo", [](toolkit::Form& form) { form.Unload(); });
    CHECK_FALSE(program.Start());
    CHECK(program.machine.journal.Calls("InitCommonControlsEx").empty());
}

TEST_CASE(
    "four controls, a frame and the buttons of the paths have a line of their own for the mouse") {
    Program program;
    REQUIRE(program.Start());
    const auto line = [&](const char* name) { return program.form->FindControl(name)->ToolTip(); };
    CHECK(line("cmdSetAllOptimal") == "Alle Einstellungen auf 'Empfohlen' setzen.");
    CHECK(line("txtExtensions") ==
          "Weitere Erweiterung durch ';' (Semikolon) trennen (Beispiel: exe;zip;dll).");
    CHECK(line("chkCDAutoPlay") == "Nur Windows XP Home Edition");
    CHECK(line("chk1RecycleBinDelete") ==
          "Diese Einstellung ist erst nach einem Neustart aktiviert");
    CHECK_FALSE(line("fraSystemFixes").empty());
    const auto& controls = program.form->Controls();
    CHECK(std::count_if(controls.begin(), controls.end(),
                        [](const auto& control) { return !control->ToolTip().empty(); }) == 5 + 14);
}
