#include "dialogs/frmsysteminformation.h"

#include "controls/chameleonbutton.h"
#include "dialogs/systemreport.h"
#include "platform/clipboard.h"
#include "platform/messages.h"
#include "toolkit/controls.h"

namespace dialogs {

frmSystemInformation::frmSystemInformation(const platform::Machine& machine)
    : Form(machine.forms, "frmSystemInformation", "Systeminformation", {}), machine_(machine) {
    using controls::chameleonButton;
    auto& report = Add<toolkit::TextBox>(
        "txtReport",
        toolkit::TextBoxStyle{.multiLine = true, .readOnly = true, .tabWidth = 20, .columns = 80});
    auto& copy = Add<chameleonButton>("cmdCopy", controls::Persisted{"TX=Kopieren"}, machine.clock);
    auto& close =
        Add<chameleonButton>("cmdClose", controls::Persisted{"TX=Schließen"}, machine.clock);
    copy.onClick = [this] { Copy(); };
    close.onClick = [this] { Unload(); };

    defaultButton = &close;
    cancelButton = &close;
    // Not the report, which would be shown marked as a whole.
    firstFocus = &close;
    sizeToContent = true;
    constexpr int ReportHeight = 300;
    SetLayout(Margin(Gap(toolkit::Column({
                             AtLeast(Leaf(report), 0, ReportHeight),
                             Gap(toolkit::Row({toolkit::Filler(), Leaf(copy), Leaf(close)}), 8),
                         }),
                         16),
                     16));
}

void frmSystemInformation::OnLoad() {
    Find<toolkit::TextBox>("txtReport").SetText(SystemReport(machine_));
}

void frmSystemInformation::Copy() {
    if (machine_.clipboard.SetText(Find<toolkit::TextBox>("txtReport").Text())) return;
    machine_.messages.Show("Der Text konnte nicht in die Zwischenablage kopiert werden.",
                           platform::message::Exclamation, "Systeminformation");
}

}  // namespace dialogs
