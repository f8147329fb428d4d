#include "tweaks/systempage.h"

#include <functional>
#include <utility>

#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "platform/machine.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/memoryrelease.h"
#include "tweaks/pageparts.h"
#include "tweaks/sliderlink.h"
#include "tweaks/transparency.h"

namespace tweaks {
namespace {

using toolkit::Box;
using toolkit::Form;
using toolkit::Leaf;
using toolkit::TextBoxStyle;

Box MemoryGroup(Form& form) {
    return CheckBoxGroup(form, {"fraMemory", "System Boosts"},
                         {
                             {"chkmemorymanagement", "Memory Paging"},
                             {"chkLargeSystemCache", "Large System Cache"},
                             {"chkBootOptimizeFunction", "Boot Optimize Function (Defrag)"},
                             {"chkSecondLevelDataCache", "Second Level Data Cache > 256 KB"},
                             {"chkBoostLoading", "Boot Data Prefetch"},
                             {"chkCDFSTune", "CDFS Performance verbessern"},
                             {"chkFastServices", "Serverdienste beschleunigen"},
                             {"chkUltraDMA66", "Ultra-DMA/66 aktivieren"},
                             {"chkMFTTuning", "Master File Table vergrößern (12,5% > 25%)"},
                         });
}

// The box for AGP is shut where there is no driver, and then hears no mouse: the frame tells why.
Box FixesGroup(Form& form) {
    Box group = CheckBoxGroup(
        form, {"fraSystemFixes", "System Fixes"},
        {
            {"chkEnableAGP4x", "AGP 4x Modus bei NVIDIA Grafikkarten aktiviert"},
            {"chkFixAthlonPCIAGP", "Problem mit Athlon Prozessoren und AGP Karten beheben"},
        });
    form.FindControl("fraSystemFixes")
        ->SetToolTip("AGP 4x ist nur wählbar, wenn ein NVIDIA-Treiber (nv4) installiert ist.");
    return group;
}

// The slider leads; the box follows.
struct LinkedPair {
    Box slider;
    Box box;
};

LinkedPair SliderWithBox(Form& form, const char* sliderName, toolkit::SliderRange range,
                         const char* boxName, const platform::Locale& locale,
                         std::function<void(std::int32_t)> effect = {}) {
    auto& slider = form.Add<toolkit::Slider>(sliderName, range, range.maximum);
    auto& box = form.Add<toolkit::TextBox>(boxName, TextBoxStyle{.columns = 5});
    LinkSliderWithBox(slider, box, locale, std::move(effect));
    return {toolkit::Stretch(Leaf(slider)), KeepSize(Leaf(box))};
}

// Both controls act on the running shell at once. The level goes no lower than 55, on purpose: what
// cannot be seen cannot be used any more.
Box TaskbarGroup(Form& form, const platform::Machine& machine) {
    auto& group = form.Add<toolkit::Frame>("fraTaskBar", "Windows Taskbar Transparenz");
    auto pair = SliderWithBox(
        form, "Level", {.minimum = 55, .maximum = 255, .smallStep = 3, .largeStep = 51, .tick = 25},
        "txtLevelValue", machine.locale, [machine](std::int32_t level) {
            SetTaskbarOpacity(machine, static_cast<std::uint8_t>(level));
        });
    form.Find<toolkit::TextBox>("txtLevelValue").SetText("255");
    auto& icons = form.Add<toolkit::CheckBox>("chkIcons", "Transparente Icons");
    icons.onClick = [&icons, machine] { IconsChosen(machine, icons.Value()); };
    return InFrame(group, toolkit::Row({pair.slider, pair.box, Leaf(icons)}));
}

Box StartMenuGroup(Form& form, const platform::Locale& locale) {
    auto& group = form.Add<toolkit::Frame>("Frame7", "Anzeigetempo Startmenü  (Default = 400)");
    auto pair =
        SliderWithBox(form, "sldStartmenu",
                      {.minimum = 1, .maximum = 400, .smallStep = 1, .largeStep = 5, .tick = 5},
                      "txtStartmenu", locale);
    return InFrame(group, toolkit::Row({pair.slider, pair.box}));
}

Box AutoLoginGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraAutoLogin", " ");
    Box enable = CheckBoxOn(form, {"chkAutoLogin", "Auto-Login aktivieren"});
    std::vector<Box> cells;
    cells.push_back(LabelOn(form, {"lblALName", "Username"}));
    cells.push_back(Stretch(TextBoxOn(form, "txtALUserName")));
    cells.push_back(LabelOn(form, {"lblALPassword", "Passwort"}));
    cells.push_back(Stretch(TextBoxOn(form, "txtALPassword", {.password = true})));
    cells.push_back(LabelOn(form, {"lblALDomain", "Domäne"}));
    cells.push_back(Stretch(TextBoxOn(form, "txtALDomain")));
    return InFrame(group,
                   Gap(toolkit::Column({enable, Gap(toolkit::Grid(2, std::move(cells)), 2)}), 2));
}

Box SystemFactsGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraOSVersion", "OS Information");
    std::vector<Box> cells;
    const auto add = [&](Named label, const char* box, TextBoxStyle style = {}) {
        cells.push_back(LabelOn(form, label));
        cells.push_back(Stretch(TextBoxOn(form, box, style)));
    };
    add({"lblOSName", "OS Name"}, "txtOSVersion");
    // Never written, so nobody is let type there in vain.
    add({"Label3", "ProductID"}, "txtProductId", {.readOnly = true});
    add({"Label4", "Reg. User"}, "txtUserName");
    add({"Label5", "Reg. Firma"}, "txtCompanyName");

    cells.push_back(LabelOn(form, {"lblOSVersion", "Version"}));
    std::vector<Box> version;
    version.push_back(
        KeepSize(TextBoxOn(form, "txtWindowsVersion", {.maxLength = 3, .columns = 4})));
    version.push_back(LabelOn(form, {"lblBuild", "build"}));
    version.push_back(KeepSize(TextBoxOn(form, "txtOSBuild", {.maxLength = 4, .columns = 5})));
    cells.push_back(Gap(toolkit::Row(std::move(version)), 8));
    cells.push_back(LabelOn(form, {"lblSPLabel", "SP"}));
    cells.push_back(LabelOn(form, {"lblSP", "n/A"}));
    return InFrame(group, Gap(toolkit::Grid(2, std::move(cells)), 2));
}

Box SystemButtons(Form& form, const platform::Machine& machine) {
    Box buttons = ButtonsOfPage(form, machine.clock,
                                {{"cmdFreeMemory", "TX=Speicher aufräumen"},
                                 {"cmdNormal", "TX=Standard"},
                                 {"cmdOptimal", "TX=Empfohlen"}});
    form.Find<controls::chameleonButton>("cmdFreeMemory").onClick = [machine] {
        ReleaseMemory(machine.forms, machine.memory, machine.locale);
    };
    return buttons;
}

}  // namespace

Box AddSystemPage(Form& form, const platform::Machine& machine) {
    Box heading = controls::PageHeading(form, "lblTuning", "Windows Tuning #1");

    std::vector<Box> left;
    left.push_back(MemoryGroup(form));
    left.push_back(
        CheckBoxOn(form, {"chkLastAccessTimestamp", "Last Access Timestamp aktiv (nur NTFS)"}));
    left.push_back(FixesGroup(form));
    left.push_back(TaskbarGroup(form, machine));

    std::vector<Box> right;
    right.push_back(AutoLoginGroup(form));
    right.push_back(StartMenuGroup(form, machine.locale));
    right.push_back(SystemFactsGroup(form));

    Box columns = toolkit::Row({Gap(toolkit::Column(std::move(left)), 6),
                                toolkit::Stretch(Gap(toolkit::Column(std::move(right)), 6))});
    return toolkit::Column(
        {heading, toolkit::Stretch(Gap(columns, 8)), SystemButtons(form, machine)});
}

}  // namespace tweaks
