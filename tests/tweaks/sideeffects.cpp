#include "tweaks/sideeffects.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/combobox.h"
#include "toolkit/form.h"
#include "tweaks/presetfixture.h"

using namespace tweak_tests;
using Root = platform::Registry;
using Launches = std::vector<platform::simulated::Processes::Launched>;

namespace {

struct ClickEffects {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    toolkit::CheckBox& hide = form.Add<toolkit::CheckBox>("chkHideWinComponents", "");
    toolkit::CheckBox& secure = form.Add<toolkit::CheckBox>("chkSecureWindows", "");
    toolkit::CheckBox& bin = form.Add<toolkit::CheckBox>("chk1RecycleBinDelete", "");
    toolkit::CheckBox& temp = form.Add<toolkit::CheckBox>("chkCleanUserTempFolder", "");
    toolkit::CheckBox& scan = form.Add<toolkit::CheckBox>("chkScanAll", "");
    toolkit::ComboBox& drives =
        form.Add<toolkit::ComboBox>("drvSelect", toolkit::ComboBoxStyle{.listOnly = true});
    toolkit::ComboBox& mtu = form.Add<toolkit::ComboBox>("cboMTU");
    toolkit::TextBox& rwin = form.Add<toolkit::TextBox>("txtRWIN");

    ClickEffects() {
        machine.files.MakeDirectory("C:\\WINDOWS\\inf");
        tweaks::ConnectSideEffects(form, machine.services);
    }

    std::string Stored(const char* section, const char* key) {
        return machine.settingsStore.Stored(section, key).value_or("absent");
    }
    const Lines& Journal() { return machine.journal.Lines(); }
};

}  // namespace

TEST_CASE_FIXTURE(ClickEffects, "showing the components remembers it and takes the word out") {
    machine.files.Put(SysocPath, "a,HIDE,7\r\n");
    hide.SetValue(1);
    CHECK(Stored("WinComponents", "Show") == "true");
    CHECK(machine.files.Content(SysocPath) == "a,,7\r\n");
    CHECK(Journal().front() == "SaveSetting \"Quillmore\" \"WinComponents\" \"Show\" \"true\"");
}

TEST_CASE_FIXTURE(ClickEffects, "no longer showing them is remembered, and the word stays out") {
    machine.files.Put(SysocPath, "a,HIDE,7\r\n");
    hide.SetValue(1);
    hide.SetValue(0);
    CHECK(Stored("WinComponents", "Show") == "false");
    CHECK(machine.files.Content(SysocPath) == "a,,7\r\n");
    CHECK(machine.journal.Calls("OpenTextFile").size() == 2);
}

TEST_CASE_FIXTURE(ClickEffects, "the grey state counts as not showing and not securing") {
    machine.files.Put(SysocPath, "a,HIDE,7\r\n");
    hide.SetValue(2);
    CHECK(Stored("WinComponents", "Show") == "false");
    CHECK(machine.files.Content(SysocPath) == "a,HIDE,7\r\n");
    secure.SetValue(2);
    CHECK(Stored("SecureWindows", "Regged") == "false");
    bin.SetValue(2);
    CHECK(machine.registry.HasKey(Root::LocalMachine, BinKey));
}

TEST_CASE_FIXTURE(ClickEffects,
                  "a file that cannot be rewritten fails to whoever clicked, silently") {
    CHECK(FailureOf([&] { hide.SetValue(1); }) == runtime::FileNotFound);
    CHECK(hide.Value() == 1);
    CHECK(Stored("WinComponents", "Show") == "true");
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(ClickEffects, "a state that cannot be remembered has no effect") {
    machine.files.Put(SysocPath, "a,HIDE,7\r\n");
    machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    CHECK(FailureOf([&] { hide.SetValue(1); }) == runtime::InvalidProcedureCall);
    CHECK(FailureOf([&] { secure.SetValue(1); }) == runtime::InvalidProcedureCall);
    CHECK(machine.files.Content(SysocPath) == "a,HIDE,7\r\n");
    CHECK(machine.journal.Calls("OpenTextFile").empty());
    CHECK(Journal().size() == 2);
}

TEST_CASE_FIXTURE(ClickEffects,
                  "securing starts the unregistering, hidden, with the variable as it is") {
    secure.SetValue(1);
    CHECK(Stored("SecureWindows", "Regged") == "true");
    REQUIRE(Journal().size() == 2);
    CHECK(Journal()[0].starts_with("SaveSetting"));
    CHECK(Journal()[1].starts_with("Start"));
    CHECK(machine.processes.launched ==
          Launches{{"regsvr32.exe %windir%\\system32\\upnp.dll /u /s", 0}});
}

TEST_CASE_FIXTURE(ClickEffects, "undoing it starts the registering; two clicks are two processes") {
    secure.SetValue(1);
    secure.SetValue(0);
    CHECK(Stored("SecureWindows", "Regged") == "false");
    CHECK(machine.processes.launched ==
          Launches{{"regsvr32.exe %windir%\\system32\\upnp.dll /u /s", 0},
                   {"regsvr32.exe %windir%\\system32\\upnp.dll /s", 0}});
}

TEST_CASE_FIXTURE(ClickEffects,
                  "a process that does not start fails, and the state stays remembered") {
    machine.faults.FailOn("regsvr32", runtime::FileNotFound);
    CHECK(FailureOf([&] { secure.SetValue(1); }) == runtime::FileNotFound);
    CHECK(Stored("SecureWindows", "Regged") == "true");
}

TEST_CASE_FIXTURE(ClickEffects, "taking the recycle bin off the desktop deletes its key") {
    machine.registry.MakeKey(Root::LocalMachine, BinKey);
    bin.SetValue(1);
    CHECK_FALSE(machine.registry.HasKey(Root::LocalMachine, BinKey));
}

TEST_CASE_FIXTURE(ClickEffects,
                  "a recycle bin that is off the desktop already is not deleted again") {
    bin.SetValue(1);
    CHECK(machine.journal.Calls("RegDeleteKeyA").empty());
    CHECK(machine.registry.Dump().empty());
}

TEST_CASE_FIXTURE(ClickEffects, "putting it back makes the key with a value literally so named") {
    bin.SetValue(1);
    bin.SetValue(0);
    REQUIRE(machine.registry.HasKey(Root::LocalMachine, BinKey));
    CHECK(machine.registry.Value(Root::LocalMachine, BinKey, "(Standard)") ==
          platform::simulated::BareTextValue(""));
    CHECK_FALSE(machine.registry.Value(Root::LocalMachine, BinKey, ""));
}

TEST_CASE_FIXTURE(ClickEffects, "putting it back where the key is there adds no value") {
    bin.SetValue(1);
    machine.registry.MakeKey(Root::LocalMachine, BinKey);
    const auto before = machine.registry.Dump();
    bin.SetValue(0);
    CHECK(machine.registry.Dump() == before);
    CHECK(machine.journal.Calls("RegSetValueExA").empty());
}

TEST_CASE_FIXTURE(ClickEffects, "a recycle bin whose key is denied stays, in silence") {
    machine.registry.MakeKey(Root::LocalMachine, BinKey);
    machine.registry.Deny(Root::LocalMachine, BinKey);
    bin.SetValue(1);
    CHECK(machine.registry.HasKey(Root::LocalMachine, BinKey));
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(ClickEffects,
                  "cleaning the user's folder warns when it is chosen, and only then") {
    temp.SetValue(1);
    CHECK(machine.messages.Shown() ==
          std::vector<platform::simulated::ShownMessage>{
              {"ACHTUNG!",
               "Bitte schließen Sie vor Benutzung dieser Option unbedingt ALLE\r\n"
               "offenen Anwendungen um Datenverlust zu vermeiden!",
               48}});
    temp.SetValue(0);
    temp.SetValue(2);
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(ClickEffects, "scanning all drives leaves none to select") {
    scan.SetValue(1);
    CHECK_FALSE(drives.Enabled());
    scan.SetValue(2);
    CHECK(drives.Enabled());
    scan.SetValue(1);
    scan.SetValue(0);
    CHECK(drives.Enabled());
}

TEST_CASE_FIXTURE(ClickEffects, "the receive window follows each key typed as the packet size") {
    const std::pair<const char*, const char*> typed[] = {
        {"1", "-156"},        {"15", "-100"}, {"150", "440"},      {"1500", "5840"},
        {"576", "2144"},      {"", "-160"},   {"abc", "-160"},     {"1500 Bytes", "5840"},
        {"40,9", "0"},        {"40.5", "2"},  {"40.3125", "1,25"}, {"1e3", "3840"},
        {" 1 4 9 2", "5808"},
    };
    for (const auto& [packet, window] : typed) {
        CAPTURE(packet);
        mtu.SetText(packet);
        CHECK(rwin.Text() == window);
    }
}

TEST_CASE_FIXTURE(ClickEffects, "the receive window follows an item picked from the list") {
    mtu.AddItem("552");
    mtu.AddItem("1500");
    mtu.SetListIndex(1);
    CHECK(rwin.Text() == "5840");
    mtu.SetListIndex(0);
    CHECK(rwin.Text() == "2048");
}

TEST_CASE_FIXTURE(ClickEffects, "the user's own window lasts until the packet size changes") {
    mtu.SetText("1500");
    rwin.SetText("32767");
    mtu.SetText("1500");
    CHECK(rwin.Text() == "32767");
    CHECK(mtu.Text() == "1500");
    mtu.SetText("1492");
    CHECK(rwin.Text() == "5808");
}

TEST_CASE_FIXTURE(ClickEffects,
                  "a packet size beyond every number is an overflow of whoever set it") {
    mtu.SetText("1500");
    CHECK(FailureOf([&] { mtu.SetText("1e999"); }) == runtime::Overflow);
    CHECK(rwin.Text() == "5840");
}

TEST_CASE_FIXTURE(ClickEffects,
                  "a packet size whose window is beyond every number is an overflow too") {
    mtu.SetText("4.49e307");
    CHECK(rwin.Text() == "1,796E+308");
    for (const char* packet : {"4.5e307", "1e308", "-1.7e308"}) {
        CAPTURE(packet);
        CHECK(FailureOf([&] { mtu.SetText(packet); }) == runtime::Overflow);
        CHECK(mtu.Text() == packet);
    }
    CHECK(FailureOf([&] { mtu.SetText(std::string(308, '9')); }) == runtime::Overflow);
    CHECK(rwin.Text() == "1,796E+308");
}

TEST_CASE_FIXTURE(ClickEffects, "a value that stays as it was does nothing") {
    hide.SetValue(0);
    secure.SetValue(0);
    bin.SetValue(0);
    temp.SetValue(0);
    scan.SetValue(0);
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE("a form that has some of the controls gets the effects of these") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmMain", "", {});
    auto& scan = form.Add<toolkit::CheckBox>("chkScanAll", "");
    auto& mtu = form.Add<toolkit::ComboBox>("cboMTU");
    tweaks::ConnectSideEffects(form, machine.services);
    scan.SetValue(1);
    mtu.SetText("1500");
    CHECK(machine.journal.Count() == 0);
}
