#include "dialogs/frmpassword.h"

#include "controls/chameleonbutton.h"
#include "toolkit/controls.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using controls::Persisted;

}  // namespace

frmPassword::frmPassword(const platform::Machine& machine)
    : Form(machine.forms, "frmPassword", "Auto-Login bestätigen", {}) {
    auto& reason = Add<toolkit::Label>(
        "Label1",
        "Auto-Login ist eingeschaltet: Windows meldet Sie künftig mit dem angegebenen\r\n"
        "Passwort an. Mit einem falschen Passwort misslingt diese Anmeldung.");
    auto& request =
        Add<toolkit::Label>("Label2", "Bitte geben Sie das Auto-Login-Passwort noch einmal ein:");
    auto& txtPasswort =
        Add<toolkit::TextBox>("txtPasswort", toolkit::TextBoxStyle{.password = true});
    auto& cmdOK = Add<chameleonButton>("cmdOK", Persisted{"TX=OK"}, machine.clock);
    auto& cmdCancel = Add<chameleonButton>("cmdCancel", Persisted{"TX=Abbrechen"}, machine.clock);
    cmdOK.onClick = [this] { Hide(); };
    cmdCancel.onClick = [this, &txtPasswort] {
        txtPasswort.SetText("");
        Hide();
    };

    defaultButton = &cmdOK;
    cancelButton = &cmdCancel;
    firstFocus = &txtPasswort;
    sizeToContent = true;
    SetLayout(
        Margin(Gap(toolkit::Column({
                       Leaf(reason),
                       Gap(toolkit::Column({Leaf(request), Leaf(txtPasswort)}), 4),
                       Gap(toolkit::Row({toolkit::Filler(), Leaf(cmdOK), Leaf(cmdCancel)}), 8),
                   }),
                   16),
               16));
}

void frmPassword::OnUnload() {
    Find<toolkit::TextBox>("txtPasswort").SetText("");
}

}  // namespace dialogs
