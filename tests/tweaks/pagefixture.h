#pragma once

#include <string>
#include <string_view>

#include "platform/simulated/machine.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/passes.h"
#include "tweaks/systempage.h"

namespace tweak_tests {

using platform::simulated::BareTextValue;
using platform::simulated::DwordValue;
using platform::simulated::StoredValue;
using platform::simulated::TextValue;
using Service = platform::Registry;

inline constexpr std::string_view MemoryKey =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management";
inline constexpr std::string_view WinlogonKey =
    "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
inline constexpr std::string_view SystemKey = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
inline constexpr std::string_view DesktopKey = "Control Panel\\Desktop";
inline constexpr std::string_view AgpKey = "SYSTEM\\CurrentControlSet\\Services\\nv4\\Device0";

// A form with every page that has options, on a given machine.
struct OptionsForm : toolkit::Form {
    explicit OptionsForm(const platform::Machine& machine)
        : Form(machine.forms, "frmMain", "", {}) {
        SetLayout(tweaks::AddSystemPage(*this, machine.clock, machine.locale));
    }

    toolkit::CheckBox& Check(std::string_view name) { return Find<toolkit::CheckBox>(name); }
    toolkit::TextBox& Box(std::string_view name) { return Find<toolkit::TextBox>(name); }
};

// The same with its machine and the passes.
struct Options {
    platform::simulated::Machine machine;
    OptionsForm form{machine.services};
    tweaks::Passes passes{form, machine.services};

    int State(std::string_view name) { return form.Check(name).Value(); }
    std::string Text(std::string_view name) { return form.Box(name).Text(); }

    void PutMachine(std::string_view key, std::string_view value, StoredValue stored) {
        machine.registry.Put(Service::LocalMachine, key, value, std::move(stored));
    }
    void PutUser(std::string_view key, std::string_view value, StoredValue stored) {
        machine.registry.Put(Service::CurrentUser, key, value, std::move(stored));
    }
    auto OfMachine(std::string_view key, std::string_view value) const {
        return machine.registry.Value(Service::LocalMachine, key, value);
    }
    auto OfUser(std::string_view key, std::string_view value) const {
        return machine.registry.Value(Service::CurrentUser, key, value);
    }
};

// A file of the repository, whole.
std::string FileText(const std::string& pathInRepository);

}  // namespace tweak_tests
