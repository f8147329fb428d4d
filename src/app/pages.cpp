#include "app/pages.h"

#include "app/buttonpictures.h"
#include "app/frmmain.h"
#include "app/utilitiespage.h"
#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "platform/machine.h"
#include "toolkit/controls.h"
#include "tools/launcherlabels.h"
#include "tools/shortcutspage.h"
#include "tweaks/networkpage.h"
#include "tweaks/pathspage.h"
#include "tweaks/securitypage.h"
#include "tweaks/systempage.h"
#include "tweaks/tweakspage.h"

namespace app {
using toolkit::Box;

Box AddPages(frmMain& form, const platform::Machine& machine, const tools::Launchers& launchers,
             std::optional<cleanup::CleanUpPage>& cleanUp) {
    auto& tabs = form.Add<toolkit::TabStrip>(
        "SSTab1", std::vector<std::string>{" System", " Tweaks", " Pfade", " CleanUp", "Sicherheit",
                                           " DFÜ", " Shortcuts", " Utilities"});
    tabs.onClick = [&form] { tools::ResetLabelColors(form); };
    std::vector<Box> pages;
    pages.push_back(tweaks::AddSystemPage(form, machine));
    pages.push_back(tweaks::AddTweaksPage(form, machine));
    pages.push_back(tweaks::AddPathsPage(form, machine));
    Box heading = controls::PageHeading(form, "lblIECache", "CleanUp");
    pages.push_back(
        toolkit::Column({std::move(heading), Stretch(cleanUp.emplace(form, machine).Layout())}));
    pages.push_back(tweaks::AddSecurityPage(form, machine));
    pages.push_back(tweaks::AddNetworkPage(form, machine));
    pages.push_back(tools::AddShortcutsPage(form));
    pages.push_back(AddUtilitiesPage(form, machine.clock, launchers));
    for (Box& page : pages) page.margin = 8;
    return toolkit::Pages(tabs, std::move(pages));
}

Box AddWindowButtons(frmMain& form, const platform::Machine& machine) {
    const auto button = [&](const char* name, const char* properties) {
        auto& added = form.Add<controls::chameleonButton>(name, controls::Persisted{properties},
                                                          machine.clock);
        added.SetPictureNormal(ButtonPicture(name));
        return toolkit::Leaf(added);
    };
    std::vector<Box> row;
    row.push_back(button("cmdSetAllOptimal", "TX=AutoTuning"));
    form.FindControl("cmdSetAllOptimal")->SetToolTip("Alle Einstellungen auf 'Empfohlen' setzen.");
    row.push_back(button("cmdSysInfo", "TX=SysInfo"));
    row.push_back(button("cmdHilfe", "TX=Hilfe"));
    row.push_back(button("cmdAbout", "TX=Info"));
    row.push_back(toolkit::Filler());
    row.push_back(button("cmdApply", "TX=Übernehmen"));
    row.push_back(button("cmdEnd", "TX=Beenden"));
    return toolkit::Gap(toolkit::Row(std::move(row)), 8);
}

}  // namespace app
