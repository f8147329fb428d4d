#pragma once

#include <string>
#include <string_view>

#include "platform/messages.h"
#include "platform/simulated/machine.h"
#include "support/optionsform.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"
#include "tweaks/networkpage.h"
#include "tweaks/passes.h"
#include "tweaks/pathspage.h"
#include "tweaks/securitypage.h"
#include "tweaks/systempage.h"
#include "tweaks/tweakspage.h"

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
inline constexpr std::string_view AdvancedKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";
inline constexpr std::string_view PoliciesKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
inline constexpr std::string_view BinKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace"
    "\\{645FF040-5081-101B-9F08-00AA002F954E}";
inline constexpr std::string_view IEKey = "Software\\Microsoft\\Internet Explorer\\Main";
inline constexpr std::string_view InternetKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
inline constexpr std::string_view TcpKey = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters";
inline constexpr std::string_view Interface1 =
    "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
    "\\{3BD4192A-BF2A-4EBA-B0E7-7C61AE30590E}";
inline constexpr std::string_view Interface2 =
    "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
    "\\{8323E657-4B53-48CC-A90C-C85DAC9764DD}";
inline constexpr char SysocPath[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

// A form with nothing but one page.
struct OnePage {
    using AddPage = toolkit::Box (*)(toolkit::Form&, const platform::Machine&);
    explicit OnePage(AddPage add) { form.SetLayout(add(form, machine.services)); }

    platform::simulated::Machine machine;
    toolkit::Form form{machine.services.forms, "frmMain", "", {}};

    toolkit::TextBox& Box(std::string_view name) { return form.Find<toolkit::TextBox>(name); }
};

// A form with all options, its machine, the passes, and a user who presses Cancel at each complaint
// about a number, which cancels nothing.
struct Options {
    Options() { machine.messages.AnswerAll("Fehler", platform::message::Cancel); }

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
    void FillNumbers() { form.FillNumbers(); }
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
