#include "app/utilitiespage.h"

#include "app/frmmain.h"
#include "app/sessionactions.h"
#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "timesync/synchronizeframe.h"
#include "toolkit/controls.h"
#include "tools/launcherlabels.h"

namespace app {
namespace {

using toolkit::Box;
using toolkit::Leaf;

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

// Each of them opens a dialog.
Box AddDialogButtons(frmMain& form, platform::Clock& clock) {
    const auto button = [&](const char* name, const char* properties) {
        return Leaf(
            form.Add<controls::chameleonButton>(name, controls::Persisted{properties}, clock));
    };
    std::vector<Box> column;
    column.push_back(button("cmdShowAllLoggedOnUsers",
                            "TX=Alle gerade am System angemeldeten Benutzer anzeigen"));
    column.push_back(button("cmdInstalledSoftware", "TX=Installierte Software"));
    column.push_back(button("cmdVirtualDrive", "TX=Virtuelle Laufwerke verwalten"));
    return toolkit::Column(std::move(column));
}

// Moves over the heading count as moves over the form.
Box AddHeading(frmMain& form) {
    Box heading = controls::PageHeading(form, "lblUtilities", "Utilities");
    form.Find<toolkit::Label>("lblUtilities").onMouseMove = [&form] {
        tools::ResetLabelColors(form);
    };
    return heading;
}

}  // namespace

Box AddUtilitiesPage(frmMain& form, platform::Clock& clock, const tools::Launchers& launchers) {
    Box heading = AddHeading(form);
    Box programs = tools::AddLauncherLabels(form, launchers);
    std::vector<Box> cells;
    cells.push_back(toolkit::Stretch(timesync::AddSynchronizeFrame(form, clock)));
    cells.push_back(toolkit::Stretch(AddOptions(form)));
    cells.push_back(AddSessionButtons(form, clock));
    cells.push_back(AddDialogButtons(form, clock));
    Box tools = toolkit::Gap(toolkit::Grid(2, std::move(cells)), 8);
    return toolkit::Gap(toolkit::Column({std::move(heading), std::move(programs), std::move(tools),
                                         toolkit::Filler()}),
                        6);
}

}  // namespace app
