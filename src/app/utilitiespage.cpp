#include "app/utilitiespage.h"

#include "app/frmmain.h"
#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "toolkit/controls.h"

namespace app {
namespace {

using toolkit::Box;
using toolkit::Leaf;

constexpr int TimeSourceGroup = 1;

Box AddOptions(frmMain& form) {
    auto& frame = form.Add<toolkit::Frame>("Frame4", "Optionen");
    const auto box = [&](const char* name, const char* caption) {
        return Leaf(form.Add<toolkit::CheckBox>(name, caption));
    };
    std::vector<Box> column;
    column.push_back(box("chkTrayIcon", "Minimieren -> Tray Icon"));
    column.push_back(box("chkCreateAutoStart", "Zum Autostart hinzufügen"));
    column.push_back(box("chkMinimzeAfterStart", "Nach Start minimieren"));
    column.push_back(box("chkRebootQuestion", "Neustart ohne Nachfrage"));
    column.push_back(box("chkForceReboot", "Neustart \"erzwingen\""));
    return toolkit::InFrame(frame, toolkit::Column(std::move(column)));
}

Box AddTimeSource(frmMain& form, platform::Clock& clock) {
    auto& frame =
        form.Add<toolkit::Frame>("fraSynchronize", "Uhrzeit und Kalender synchronisieren");
    const auto option = [&](const char* name, const char* caption) {
        return Leaf(form.Add<toolkit::OptionButton>(name, caption, TimeSourceGroup));
    };
    std::vector<Box> column;
    column.push_back(option("optAtomUhr", "Mit Atomuhr synchronisieren"));
    column.push_back(option("optSynServer", "Mit diesem Server synchronisieren:"));
    column.push_back(
        Leaf(form.Add<toolkit::TextBox>("txtSyncServer", toolkit::TextBoxStyle{.columns = 30})));
    auto& synchronise =
        form.Add<controls::chameleonButton>("cmdSynchronizeDateTime", "Synchronisieren", clock);
    synchronise.SetEnabled(false);
    column.push_back(toolkit::Row({toolkit::Filler(), Leaf(synchronise)}));
    return toolkit::InFrame(frame, toolkit::Column(std::move(column)));
}

}  // namespace

Box AddUtilitiesPage(frmMain& form, platform::Clock& clock) {
    Box heading = controls::PageHeading(form, "lblUtilities", "Utilities");
    Box timeSource = AddTimeSource(form, clock);
    Box options = AddOptions(form);
    return toolkit::Column({std::move(heading),
                            toolkit::Gap(toolkit::Row({toolkit::Stretch(std::move(timeSource)),
                                                       toolkit::Stretch(std::move(options))}),
                                         8),
                            toolkit::Filler()});
}

}  // namespace app
