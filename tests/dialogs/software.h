#pragma once

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "dialogs/frminstalledsoftware.h"
#include "platform/machinewith.h"
#include "platform/simulated/machine.h"
#include "registry/restless.h"
#include "toolkit/controls.h"
#include "toolkit/listview.h"

namespace dialogs_test {

using namespace std::string_literals;
using platform::Registry;
using platform::simulated::StoredValue;
using platform::simulated::TextValue;
using toolkit::ListView;
using Lines = std::vector<std::string>;
using Run = platform::simulated::Processes::Run;

inline constexpr char UninstallKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
inline constexpr char CannotStart[] = "Fehler beim deinstallieren aufgetreten";

// A machine with software and the dialog that lists it.
struct Software {
    platform::simulated::Machine machine;
    registry_tests::Restless restless{machine.registry};
    dialogs::frmInstalledSoftware form{platform::With(machine.services, {.registry = &restless})};
    ListView& list = form.Find<ListView>("lvwSoftware");
    std::vector<Run>& runs = machine.processes.runs;

    void Put(const std::string& key, const char* value, StoredValue data) {
        machine.registry.Put(Registry::LocalMachine, UninstallKey + key, value, std::move(data));
    }
    void Seed(const std::string& key, const std::string& displayName,
              const std::string& uninstallString) {
        Put(key, "DisplayName", TextValue(displayName));
        Put(key, "UninstallString", TextValue(uninstallString));
    }
    // Three entries whose uninstallers run until somebody ends them.
    void ShowThree() {
        for (const char* name : {"Alpha", "Beta", "Gamma"}) {
            Seed(name, name, "C:\\"s + name + ".exe /u");
        }
        machine.processes.whenStarted = [](const std::string&) { return Run{0, Run::Endless}; };
        form.Show();
    }
    bool HasKey(const std::string& key) const {
        return machine.registry.HasKey(Registry::LocalMachine, UninstallKey + key);
    }
    void Press(const char* name) { form.Find<controls::chameleonButton>(name).Press(); }
    void Select(std::initializer_list<int> rows) {
        for (int row = 0; row < list.Count(); ++row) list.SetSelected(row, false);
        for (const int row : rows) list.SetSelected(row, true);
    }
    void Tick() { machine.clock.Advance(dialogs::frmInstalledSoftware::ProcessInterval); }
    bool IsWatching() const { return machine.clock.RunningTimers() > 0; }
    // The watched uninstaller ends and has done its work, and the watch sees it.
    void EndAlpha() {
        runs[0].questions = 0;
        machine.registry.EraseKey(Registry::LocalMachine, UninstallKey + "Alpha"s);
        Tick();
    }
    std::string LastSent() const { return machine.journal.Calls("SendMessageA").back(); }
    Lines Names() const {
        Lines names;
        for (int row = 0; row < list.Count(); ++row) names.push_back(list.Text(row));
        return names;
    }
    Lines Selected() const {
        Lines names;
        for (int row = 0; row < list.Count(); ++row) {
            if (list.Selected(row)) names.push_back(list.Text(row));
        }
        return names;
    }
    Lines Started() const {
        Lines lines;
        for (const auto& each : machine.processes.launched) {
            CHECK(each.windowStyle == 1);
            lines.push_back(each.commandLine);
        }
        return lines;
    }
    std::string Found() const { return form.Find<toolkit::Label>("lblFound").Caption(); }
    platform::simulated::ShownMessage OneBox() const {
        REQUIRE(machine.messages.Shown().size() == 1);
        return machine.messages.Shown()[0];
    }
};

}  // namespace dialogs_test
