#include "app/closing.h"

#include <string>

#include "app/programoptions.h"
#include "controls/ctooltip.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/settings.h"
#include "platform/tray.h"
#include "runtime/number.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace app {
namespace {

// Width and Height are stored and never read: the window's size is fixed.
void StoreWindowFacts(const toolkit::Form& form, const platform::Machine& machine,
                      platform::Settings& settings) {
    const runtime::NumberSigns signs = machine.locale.Signs();
    const toolkit::Bounds& place = form.Place();
    const auto save = [&](const char* key, const std::string& text) {
        settings.SaveSetting("Options", key, text);
    };
    save("Width", runtime::ToText(place.width, signs));
    save("Height", runtime::ToText(place.height, signs));
    save("Top", runtime::ToText(place.top, signs));
    save("Left", runtime::ToText(place.left, signs));
    save("State", runtime::ToText(static_cast<std::int32_t>(form.State())));
    save("ServerName", form.Find<toolkit::TextBox>("txtSyncServer").Text());
}

}  // namespace

void CloseProgram(toolkit::Form& form, const platform::Machine& machine,
                  std::optional<controls::cToolTip>& tips) {
    platform::Settings settings(machine.settingsStore);

    // A window that hides in the tray has no place worth remembering; that the server name typed
    // before is lost with it is meant to be so.
    if (form.InTaskbar()) StoreWindowFacts(form, machine, settings);
    SaveProgramOptions(form, machine);
    settings.SaveSetting(
        "Options", "Tab",
        runtime::ToText(std::int32_t{form.Find<toolkit::TabStrip>("SSTab1").Tab()}));

    // A window hidden in the tray must exist visibly while the forms close.
    form.Show();
    tips.reset();
    machine.tray.SetShown(false);
    for (toolkit::Form* open : machine.forms.OpenForms()) {
        if (open != &form) open->Unload();
    }
    machine.forms.Close(form);
    machine.program.End();
}

}  // namespace app
