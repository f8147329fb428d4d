#include "app/programoptions.h"

#include <string>

#include "platform/autostart.h"
#include "platform/program.h"
#include "platform/settings.h"
#include "platform/tray.h"
#include "runtime/failure.h"
#include "runtime/programtitle.h"
#include "runtime/text.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/previewlibrary.h"

namespace app {
namespace {

using platform::Settings;
using runtime::ProgramTitle;
using runtime::Skip;
using toolkit::CheckBox;

bool IsSet(const toolkit::Form& form, const char* name) {
    return form.Find<CheckBox>(name).Value() == 1;
}

void Store(const toolkit::Form& form, const char* name, Settings& settings, const char* key) {
    Skip([&] { settings.SaveSetting("Options", key, IsSet(form, name) ? "1" : "0"); });
}

// A stored "1" sets the box, any other text clears it, an absent one leaves it.
void Restore(toolkit::Form& form, const char* name, const Settings& settings, const char* section,
             const char* key) {
    Skip([&] {
        const std::string stored = settings.GetSetting(section, key);
        if (!stored.empty()) form.Find<CheckBox>(name).SetValue(stored == "1" ? 1 : 0);
    });
}

// The same with "true" for "1", in whatever case.
void RestoreTrue(toolkit::Form& form, const char* name, const Settings& settings,
                 const char* section, const char* key) {
    Skip([&] {
        const std::string stored = settings.GetSetting(section, key);
        if (stored.empty()) return;
        form.Find<CheckBox>(name).SetValue(runtime::ToLower(stored) == "true" ? 1 : 0);
    });
}

void RestoreTransparencyLevel(toolkit::Form& form, const Settings& settings) {
    Skip([&] {
        const std::string stored = settings.GetSetting("TaskBar", "Luminance");
        form.Find<toolkit::TextBox>("txtLevelValue").SetText(stored.empty() ? "255" : stored);
    });
}

void RestoreTrayIcon(toolkit::Form& form, const platform::Machine& machine,
                     const Settings& settings) {
    Skip([&] {
        const std::string stored = settings.GetSetting("Options", "TrayIcon");
        if (stored.empty()) return;
        Skip([&] { form.Find<CheckBox>("chkTrayIcon").SetValue(stored == "1" ? 1 : 0); });
        if (stored == "1") DressTrayIcon(machine);
    });
}

// Closing always stores this key, so from the second start on it overrules the stored window
// state: a window closed maximised opens normal. That is meant to be so.
void RestoreMinimised(toolkit::Form& form, const platform::Machine& machine,
                      const Settings& settings) {
    Skip([&] {
        const std::string stored = settings.GetSetting("Options", "MinimizeAfterStart");
        if (stored.empty()) return;
        auto& box = form.Find<CheckBox>("chkMinimzeAfterStart");
        if (stored == "1") {
            Skip([&] { box.SetValue(1); });
            Skip([&] { form.SetState(toolkit::WindowState::Minimised); });
            if (!IsSet(form, "chkTrayIcon")) return;
            Skip([&] { form.SetInTaskbar(false); });
            Skip([&] { machine.tray.SetShown(true); });
        } else {
            Skip([&] { box.SetValue(0); });
            Skip([&] { form.SetState(toolkit::WindowState::Normal); });
            Skip([&] { form.SetInTaskbar(true); });
        }
    });
}

}  // namespace

void DressTrayIcon(const platform::Machine& machine) {
    Skip([&] { machine.tray.SetIcon(); });
    Skip([&] { machine.tray.SetTip(ProgramTitle); });
}

void SaveProgramOptions(toolkit::Form& form, const platform::Machine& machine) {
    Settings settings(machine.settingsStore);

    Store(form, "chkTrayIcon", settings, "TrayIcon");
    if (IsSet(form, "chkTrayIcon")) DressTrayIcon(machine);

    Skip([&] {
        if (IsSet(form, "chkCreateAutoStart")) {
            machine.autostart.AutoStartAdd(machine.program.Directory(), ProgramTitle,
                                           machine.program.ExecutableName());
        } else {
            machine.autostart.AutoStartRemove(ProgramTitle);
        }
    });
    Store(form, "chkCreateAutoStart", settings, "AutoStart");
    Store(form, "chkMinimzeAfterStart", settings, "MinimizeAfterStart");
    Store(form, "chkRebootQuestion", settings, "RebootQuestion");
    Store(form, "chkForceReboot", settings, "ForceReboot");
}

void RestoreProgramOptions(toolkit::Form& form, const platform::Machine& machine) {
    const Settings settings(machine.settingsStore);

    RestoreTrue(form, "chkHideWinComponents", settings, "WinComponents", "Show");
    Restore(form, "chkIcons", settings, "Desktop", "TransparentIcons");
    RestoreTransparencyLevel(form, settings);
    RestoreTrue(form, "chkSecureWindows", settings, "SecureWindows", "Regged");
    Skip([&] {
        const bool exists = machine.autostart.AutoStartExists(ProgramTitle);
        form.Find<CheckBox>("chkCreateAutoStart").SetValue(exists ? 1 : 0);
    });
    RestoreTrayIcon(form, machine, settings);
    Skip([&] { tweaks::RestorePreviewLibrary(form, settings); });
    RestoreMinimised(form, machine, settings);
    Restore(form, "chkRebootQuestion", settings, "Options", "RebootQuestion");
    Restore(form, "chkForceReboot", settings, "Options", "ForceReboot");
}

}  // namespace app
