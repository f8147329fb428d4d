#include "tweaks/sideeffects.h"

#include <cstdint>

#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/settings.h"
#include "registry/registry.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/receivewindow.h"
#include "tweaks/registerlibrary.h"
#include "tweaks/sysocinf.h"

namespace tweaks {
namespace {

using platform::Machine;
using platform::Settings;
using toolkit::CheckBox;

constexpr char RecycleBinKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
    "{645FF040-5081-101B-9F08-00AA002F954E}";

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

}  // namespace

void ConnectSideEffects(toolkit::Form& form, const Machine& machine) {
    for (const Click& click : Clicks) {
        auto* box = dynamic_cast<CheckBox*>(form.FindControl(click.control));
        if (!box) continue;
        box->onClick = [box, effect = click.effect, machine] { effect(*box, machine); };
    }
    ConnectReceiveWindow(form, machine.locale);
}

}  // namespace tweaks
