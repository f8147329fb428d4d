#include "app/pages.h"

#include "app/frmmain.h"
#include "app/utilitiespage.h"
#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "toolkit/controls.h"
#include "tweaks/systempage.h"

namespace app {
namespace {

using controls::PageHeading;
using toolkit::Box;

Box HeadingOnly(frmMain& form, const char* name, const char* caption) {
    return toolkit::Column({PageHeading(form, name, caption), toolkit::Filler()});
}

}  // namespace

Box AddPages(frmMain& form, const platform::Machine& machine) {
    auto& tabs = form.Add<toolkit::TabStrip>(
        "SSTab1", std::vector<std::string>{" System", " Tweaks", " Pfade", " CleanUp", "Sicherheit",
                                           " DFÜ", " Shortcuts", " Utilities"});
    std::vector<Box> pages;
    pages.push_back(tweaks::AddSystemPage(form, machine.clock, machine.locale));
    pages.push_back(HeadingOnly(form, "lblWindows2", "Windows Tuning #2"));
    pages.push_back(HeadingOnly(form, "lblSystemPaths", "Systempfade ändern"));
    pages.push_back(HeadingOnly(form, "lblIECache", "CleanUp"));
    pages.push_back(HeadingOnly(form, "lblMisc", "Sicherheit && Administratives"));
    pages.push_back(HeadingOnly(form, "Label7", "DFÜ Einstellungen"));
    pages.push_back(HeadingOnly(form, "lblShortcuts", "Windows XP Shortcuts"));
    pages.push_back(AddUtilitiesPage(form, machine.clock));
    for (Box& page : pages) page.margin = 8;
    return toolkit::Pages(tabs, std::move(pages));
}

Box AddWindowButtons(frmMain& form, const platform::Machine& machine) {
    const auto button = [&](const char* name, const char* caption, bool enabled) {
        auto& made = form.Add<controls::chameleonButton>(name, caption, machine.clock);
        made.SetEnabled(enabled);
        return toolkit::Leaf(made);
    };
    std::vector<Box> row;
    row.push_back(button("cmdSetAllOptimal", "AutoTuning", false));
    row.push_back(button("cmdSysInfo", "SysInfo", false));
    row.push_back(button("cmdHilfe", "Hilfe", false));
    row.push_back(button("cmdAbout", "Info", false));
    row.push_back(toolkit::Filler());
    row.push_back(button("cmdApply", "Übernehmen", true));
    row.push_back(button("cmdEnd", "Beenden", true));
    return toolkit::Gap(toolkit::Row(std::move(row)), 8);
}

}  // namespace app
