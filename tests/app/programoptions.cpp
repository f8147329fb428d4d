#include "app/programoptions.h"

#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using toolkit::WindowState;

namespace {

struct Option {
    const char* control;
    const char* key;
};

constexpr Option Options[] = {
    {"chkTrayIcon", "TrayIcon"},
    {"chkCreateAutoStart", "AutoStart"},
    {"chkMinimzeAfterStart", "MinimizeAfterStart"},
    {"chkRebootQuestion", "RebootQuestion"},
    {"chkForceReboot", "ForceReboot"},
};

}  // namespace

TEST_CASE("each of the five boxes is stored as 1 when set and 0 when not") {
    for (const Option& option : Options) {
        CAPTURE(option.control);
        Program program;
        REQUIRE(program.Start());
        program.Check(option.control).SetValue(1);
        app::SaveProgramOptions(*program.form, program.machine.services);
        for (const Option& other : Options) {
            CAPTURE(other.key);
            CHECK(program.Stored(other.key) == (other.key == option.key ? "1" : "0"));
        }
    }
}

TEST_CASE("the grey state of a box is stored as 0") {
    Program program;
    REQUIRE(program.Start());
    for (const Option& option : Options) program.Check(option.control).SetValue(2);
    app::SaveProgramOptions(*program.form, program.machine.services);
    for (const Option& option : Options) CHECK(program.Stored(option.key) == "0");
    CHECK(program.machine.autostart.entries.empty());
}

TEST_CASE("saving with the autostart box set adds the entry at every save") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkCreateAutoStart").SetValue(1);
    program.machine.journal.Clear();
    app::SaveProgramOptions(*program.form, program.machine.services);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.machine.journal.Calls("AutoStartAdd").size() == 2);
    CHECK(program.machine.autostart.entries.count("Quillmore") == 1);
}

TEST_CASE("saving with the autostart box clear removes the entry") {
    Program program;
    program.machine.autostart.entries["Quillmore"] = "anything";
    REQUIRE(program.Start());
    CHECK(program.Check("chkCreateAutoStart").Value() == 1);
    program.Check("chkCreateAutoStart").SetValue(0);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.machine.autostart.entries.empty());
}

TEST_CASE("AutoStart set by hand in the store has no effect on the box") {
    Program program;
    program.machine.settingsStore.Put("Options", "AutoStart", "1");
    REQUIRE(program.Start());
    CHECK(program.Check("chkCreateAutoStart").Value() == 0);
}

TEST_CASE("saving with the tray box set dresses the tray icon without showing it") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkTrayIcon").SetValue(1);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.machine.tray.hasIcon);
    CHECK(program.machine.tray.tip == "Quillmore");
    CHECK_FALSE(program.machine.tray.shown);
}

TEST_CASE("a store that cannot be written keeps the old values and reports nothing") {
    Program program;
    REQUIRE(program.Start());
    program.machine.settingsStore.Put("Options", "ForceReboot", "1");
    program.machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.Stored("ForceReboot") == "1");
    CHECK(program.Stored("TrayIcon") == "absent");
    CHECK(program.machine.messages.Shown().empty());
}

TEST_CASE("an option that cannot be stored does not keep the others and the entry from it") {
    for (const Option& failing : Options) {
        CAPTURE(failing.key);
        Program program;
        REQUIRE(program.Start());
        for (const Option& option : Options) program.Check(option.control).SetValue(1);
        program.machine.faults.FailOn("Quillmore|Options|" + std::string(failing.key),
                                      runtime::InvalidProcedureCall);
        app::SaveProgramOptions(*program.form, program.machine.services);
        for (const Option& option : Options) {
            CAPTURE(option.key);
            CHECK(program.Stored(option.key) == (option.key == failing.key ? "absent" : "1"));
        }
        CHECK(program.machine.tray.tip == "Quillmore");
        CHECK(program.machine.autostart.entries.count("Quillmore") == 1);
    }
}

TEST_CASE("an autostart entry that cannot be made is stored as wanted all the same") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkCreateAutoStart").SetValue(1);
    program.machine.faults.FailAll("AutoStartAdd", runtime::PermissionDenied);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.Stored("AutoStart") == "1");
    CHECK(program.Stored("ForceReboot") == "0");
}

TEST_CASE("the boxes but the autostart one come back from the store") {
    for (const Option& option : Options) {
        if (option.key == Options[1].key) continue;
        CAPTURE(option.control);
        Program set;
        set.machine.settingsStore.Put("Options", option.key, "1");
        REQUIRE(set.Start());
        CHECK(set.Check(option.control).Value() == 1);

        Program other;
        other.machine.settingsStore.Put("Options", option.key, "true");
        REQUIRE(other.Start());
        CHECK(other.Check(option.control).Value() == 0);

        Program absent;
        REQUIRE(absent.Start());
        CHECK(absent.Check(option.control).Value() == 0);
    }
}

TEST_CASE("a stored transparency level goes to its box and from there to the slider") {
    Program program;
    program.machine.settingsStore.Put("TaskBar", "Luminance", "100");
    REQUIRE(program.Start());
    CHECK(program.Text("txtLevelValue").Text() == "100");
    CHECK(program.form->Find<toolkit::Slider>("Level").Value() == 100);
}

TEST_CASE("an absent transparency level gives 255") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.Text("txtLevelValue").Text() == "255");
}

TEST_CASE("transparent icons come back from the store") {
    Program program;
    program.machine.settingsStore.Put("Desktop", "TransparentIcons", "1");
    REQUIRE(program.Start());
    CHECK(program.Check("chkIcons").Value() == 1);
}

TEST_CASE("a start minimised with the tray option hides in the tray") {
    Program program;
    program.machine.settingsStore.Put("Options", "MinimizeAfterStart", "1");
    program.machine.settingsStore.Put("Options", "TrayIcon", "1");
    REQUIRE(program.Start());
    CHECK(program.form->State() == WindowState::Minimised);
    CHECK_FALSE(program.form->InTaskbar());
    CHECK_FALSE(program.form->Visible());
    CHECK(program.machine.tray.shown);
    CHECK(program.machine.tray.hasIcon);
    CHECK(program.machine.tray.tip == "Quillmore");
}

TEST_CASE("a start minimised without the tray option keeps the taskbar entry") {
    Program program;
    program.machine.settingsStore.Put("Options", "MinimizeAfterStart", "1");
    program.machine.settingsStore.Put("Options", "TrayIcon", "0");
    REQUIRE(program.Start());
    CHECK(program.form->State() == WindowState::Minimised);
    CHECK(program.form->InTaskbar());
    CHECK(program.form->Visible());
    CHECK_FALSE(program.machine.tray.shown);
}

TEST_CASE("a stored MinimizeAfterStart of 0 makes the taskbar entry visible") {
    Program program;
    program.machine.settingsStore.Put("Options", "MinimizeAfterStart", "0");
    program.form = std::make_unique<app::frmMain>(program.machine.services);
    program.form->SetInTaskbar(false);
    program.form->Load();
    CHECK(program.form->InTaskbar());
}

TEST_CASE("the autostart entry records the program's directory and name") {
    Program program;
    REQUIRE(program.Start());
    program.Check("chkCreateAutoStart").SetValue(1);
    app::SaveProgramOptions(*program.form, program.machine.services);
    CHECK(program.machine.autostart.entries["Quillmore"].find(
              "C:\\Programme\\Quillmore\\Quillmore.exe") != std::string::npos);
}
