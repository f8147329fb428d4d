#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;

TEST_CASE("the window has the eight pages with their captions") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::TabStrip>("SSTab1").Captions() ==
          std::vector<std::string>{" System", " Tweaks", " Pfade", " CleanUp", "Sicherheit", " DFÜ",
                                   " Shortcuts", " Utilities"});
}

TEST_CASE("every page carries its heading over an engraved line") {
    Program program;
    REQUIRE(program.Start());
    const std::pair<const char*, const char*> headings[] = {
        {"lblTuning", "Windows Tuning #1"},           {"lblWindows2", "Windows Tuning #2"},
        {"lblSystemPaths", "Systempfade ändern"},     {"lblIECache", "CleanUp"},
        {"lblMisc", "Sicherheit && Administratives"}, {"Label7", "DFÜ Einstellungen"},
        {"lblShortcuts", "Windows XP Shortcuts"},     {"lblUtilities", "Utilities"}};
    for (const auto& [name, caption] : headings) {
        CAPTURE(name);
        const auto& label = program.form->Find<toolkit::Label>(name);
        CHECK(label.Caption() == caption);
        CHECK(label.Style() == toolkit::LabelStyle::Heading);
        CHECK(program.form->FindControl("Line3D(" + std::string(name) + ")") != nullptr);
    }
}

TEST_CASE("buttons with nothing to act on are disabled, the others are not") {
    Program program;
    REQUIRE(program.Start());
    for (const char* name : {"cmdCleanTempFiles", "cmdClearIECache"}) {
        CAPTURE(name);
        CHECK_FALSE(program.form->Find<controls::chameleonButton>(name).Enabled());
    }
    for (const char* name : {"cmdApply",
                             "cmdEnd",
                             "cmdFreeMemory",
                             "cmdHilfe",
                             "cmdSysInfo",
                             "cmdAbout",
                             "cmdSetAllOptimal",
                             "cmdNormal",
                             "cmdOptimal",
                             "cmdNormalWindows2",
                             "cmdOptimalWindows2",
                             "cmdDefaultMisc",
                             "cmdOptimalMisc",
                             "cmdStandardDfue",
                             "cmdOptimalDfue",
                             "cmdExtensionDefault",
                             "cmdPathDefault",
                             "cmdSynchronizeDateTime",
                             "cmdShowAllLoggedOnUsers",
                             "cmdInstalledSoftware",
                             "cmdVirtualDrive",
                             "cmdSearchTempFiles",
                             "cmdCleanBinDirect",
                             "cmdUpdateIECache"}) {
        CAPTURE(name);
        CHECK(program.form->Find<controls::chameleonButton>(name).Enabled());
    }
}

TEST_CASE("every control of the window has a place in the layout, exactly one") {
    Program program;
    REQUIRE(program.Start());
    struct Measure : toolkit::TextMeasure {
        toolkit::Size SizeOf(std::string_view text, bool) const override {
            return {static_cast<int>(text.size()) * 6, 13};
        }
        int Scale(int pixels) const override { return pixels; }
    };
    const auto placed = toolkit::Arrange(program.form->Layout(), {0, 0, 660, 500}, Measure());
    std::map<std::string, int> count;
    for (const toolkit::Placement& placement : placed) ++count[placement.control->Name()];
    for (const auto& control : program.form->Controls()) {
        CAPTURE(control->Name());
        CHECK(count[control->Name()] == 1);
    }
}
