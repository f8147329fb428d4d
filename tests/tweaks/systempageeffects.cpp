#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/systempage.h"

// What the page System does at once, without Apply.

namespace {

struct SystemPageEffects {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    platform::OtherWindows::Handle taskbar = machine.otherWindows.Open("Shell_TrayWnd");

    SystemPageEffects() { form.SetLayout(tweaks::AddSystemPage(form, machine.services)); }

    toolkit::Slider& Level() { return form.Find<toolkit::Slider>("Level"); }
    toolkit::TextBox& Box() { return form.Find<toolkit::TextBox>("txtLevelValue"); }
    int Alpha() { return machine.otherWindows.At(taskbar).alpha; }
    std::string Luminance() {
        return machine.settingsStore.Stored("TaskBar", "Luminance").value_or("absent");
    }
};

}  // namespace

TEST_CASE_FIXTURE(SystemPageEffects, "a page that has just been made has touched nothing") {
    CHECK(machine.journal.Count() == 0);
    CHECK(Box().Text() == "255");
    CHECK(Level().Value() == 255);
}

TEST_CASE_FIXTURE(SystemPageEffects, "a level that is typed is shown, stored and applied") {
    Box().SetText("100");
    CHECK(Level().Value() == 100);
    CHECK(Luminance() == "100");
    CHECK(Alpha() == 100);
}

TEST_CASE_FIXTURE(SystemPageEffects,
                  "a level that is dragged is applied once and goes to the box") {
    Level().SetValue(77);
    CHECK(Box().Text() == "77");
    CHECK(Alpha() == 77);
    CHECK(machine.journal.Calls("SetLayeredWindowAttributes").size() == 1);
    CHECK(machine.journal.Calls("SaveSetting").size() == 1);
}

TEST_CASE_FIXTURE(SystemPageEffects, "a box without a number keeps the level") {
    Box().SetText("100");
    machine.journal.Clear();
    Box().SetText("");
    Box().SetText("hell");
    CHECK(Level().Value() == 100);
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(SystemPageEffects,
                  "a number below 55 or above 255 is neither stored nor applied") {
    Box().SetText("200");
    machine.journal.Clear();
    for (const char* text : {"0", "54", "256", "1000", "-100"}) {
        CAPTURE(text);
        Box().SetText(text);
        CHECK(Level().Value() == 200);
        CHECK(Box().Text() == text);
    }
    CHECK(machine.journal.Count() == 0);
    Level().SetValue(100);
    CHECK(Box().Text() == "100");
}

TEST_CASE_FIXTURE(SystemPageEffects,
                  "a level typed digit by digit acts when it is one, and only then") {
    for (const char* text : {"", "2", "20", "200"}) Box().SetText(text);
    CHECK(machine.journal.Calls("SaveSetting").size() == 1);
    CHECK(Luminance() == "200");
    CHECK(Alpha() == 200);
    CHECK(Box().Text() == "200");
}

TEST_CASE_FIXTURE(SystemPageEffects, "the designed level given once more does nothing") {
    Box().SetText("255");
    Level().SetValue(255);
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(SystemPageEffects, "the icons' box acts when its value changes, and only then") {
    auto& icons = form.Find<toolkit::CheckBox>("chkIcons");
    icons.SetValue(1);
    CHECK(machine.settingsStore.Stored("Desktop", "TransparentIcons") == "1");
    CHECK(machine.journal.Calls("FindWindowA").size() == 1);
    machine.journal.Clear();
    icons.SetValue(1);
    CHECK(machine.journal.Count() == 0);
    icons.SetValue(0);
    CHECK(machine.settingsStore.Stored("Desktop", "TransparentIcons") == "0");
}

TEST_CASE_FIXTURE(SystemPageEffects,
                  "the button takes the block and gives it back with each press") {
    auto& button = form.Find<controls::chameleonButton>("cmdFreeMemory");
    button.Press();
    button.Press();
    CHECK(machine.journal.Calls("Memory.Blanks").size() == 2);
    CHECK(machine.memory.Peak() == 240000000);
    CHECK(machine.memory.Held() == 0);
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}
