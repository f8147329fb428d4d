#include "tweaks/sideeffects.h"

#include <cstdint>

#include "platform/locale.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/settings.h"
#include "registry/registry.h"
#include "runtime/number.h"
#include "toolkit/combobox.h"
#include "toolkit/form.h"
#include "tweaks/registerlibrary.h"
#include "tweaks/sysocinf.h"

namespace tweaks {
namespace {

using platform::Machine;
using platform::Settings;
using toolkit::CheckBox;
using toolkit::ComboBox;

constexpr char RecycleBinKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
    "{645FF040-5081-101B-9F08-00AA002F954E}";

// The bytes of both headers that do not belong to a packet's content.
constexpr double HeaderBytes = 40;
constexpr double SegmentsInWindow = 4;

// A state is remembered before its effect is tried.
void Remember(const Machine& machine, const char* section, const char* key, bool on) {
    Settings(machine.settingsStore).SaveSetting(section, key, on ? "true" : "false");
}

void HideWinComponents(const CheckBox& box, const Machine& machine) {
    const bool show = box.Value() == 1;
    Remember(machine, "WinComponents", "Show", show);
    RewriteSysocInf(machine, show);
}

void SecureWindows(const CheckBox& box, const Machine& machine) {
    const bool secure = box.Value() == 1;
    Remember(machine, "SecureWindows", "Regged", secure);
    RegisterLibrary(machine.processes, "upnp.dll", !secure);
}

// A key that is there already gets no value. "(Standard)" is the name of an ordinary value here, on
// purpose, and not the key's default value, which is only shown under this name.
void RecycleBinDelete(const CheckBox& box, const Machine& machine) {
    registry::Registry registry(machine.registry, machine.locale);
    const bool present = registry.RegKeyPresent(registry::HKLM, RecycleBinKey);
    if (box.Value() == 1) {
        if (present) registry.RegDeleteKeyAt(registry::HKLM, RecycleBinKey);
    } else if (!present) {
        registry.RegWriteString(registry::HKLM, RecycleBinKey, "(Standard)", "");
    }
}

void CleanUserTempFolder(const CheckBox& box, const Machine& machine) {
    if (box.Value() != 1) return;
    machine.messages.Show(
        "Bitte schließen Sie vor Benutzung dieser Option unbedingt ALLE\r\n"
        "offenen Anwendungen um Datenverlust zu vermeiden!",
        platform::message::Exclamation, "ACHTUNG!");
}

// All drives leave nothing to select.
void ScanAll(const CheckBox& box, const Machine&) {
    if (auto* drives = box.Owner().FindControl("drvSelect")) drives->SetEnabled(box.Value() != 1);
}

struct Click {
    const char* control;
    void (*effect)(const CheckBox&, const Machine&);
};

constexpr Click Clicks[] = {
    {"chkHideWinComponents", HideWinComponents},
    {"chkSecureWindows", SecureWindows},
    {"chk1RecycleBinDelete", RecycleBinDelete},
    {"chkCleanUserTempFolder", CleanUserTempFolder},
    {"chkScanAll", ScanAll},
};

// The receive window follows the packet size, down below zero where the user has typed only the
// first digits. An entry of his own lasts until the next change.
void FollowPacketSize(const ComboBox& packet, toolkit::TextBox& window,
                      const platform::Locale& locale) {
    const double size = runtime::LeadingNumber(packet.Text());
    window.SetText(runtime::ToText((size - HeaderBytes) * SegmentsInWindow, locale.Signs()));
}

}  // namespace

void ConnectSideEffects(toolkit::Form& form, const Machine& machine) {
    for (const Click& click : Clicks) {
        auto* box = dynamic_cast<CheckBox*>(form.FindControl(click.control));
        if (!box) continue;
        box->onClick = [box, effect = click.effect, machine] { effect(*box, machine); };
    }
    auto* packet = dynamic_cast<ComboBox*>(form.FindControl("cboMTU"));
    auto* window = dynamic_cast<toolkit::TextBox*>(form.FindControl("txtRWIN"));
    if (packet && window) {
        const auto follow = [packet, window, &locale = machine.locale] {
            FollowPacketSize(*packet, *window, locale);
        };
        packet->onChange = follow;
        packet->onClick = follow;
    }
}

}  // namespace tweaks
