// Every preset against the list of tests/golden/presets.tsv.
#include <doctest/doctest.h>

#include <set>

#include "tweaks/presetfixture.h"
#include "tweaks/presetlists.h"

using namespace tweak_tests;

TEST_CASE("the golden list names every preset of the program, and no other") {
    std::set<std::string> made{AutoTuningButton};
    for (const tweaks::PresetButton& button : tweaks::PresetButtons()) made.insert(button.name);
    for (const tweaks::NetworkSet& set : tweaks::NetworkSets()) made.insert(set.option);
    CHECK(made.size() == 1 + tweaks::PresetButtons().size() + tweaks::NetworkSets().size());
    CHECK(std::set<std::string>(GoldenPresets().begin(), GoldenPresets().end()) == made);
}

TEST_CASE("every preset sets the controls of its golden list in that order, and no other") {
    for (const std::string& preset : GoldenPresets()) {
        CAPTURE(preset);
        Presets program;
        const toolkit::Handler load =
            preset.starts_with("opt") ? program.EventOf(preset) : toolkit::Handler();
        program.Isolate();
        Lines expected = LinesOf(GoldenSteps(preset));
        if (preset.starts_with("opt")) {
            program.EventOf(preset) = load;
            expected.insert(expected.begin(), preset + " = selected");
        }
        ChangeNotes changes(program.form);
        program.Press(preset);
        CHECK(changes.lines == expected);
    }
}

TEST_CASE("AutoTuning is the four recommendations but for four controls less and one more") {
    Lines composed;
    for (const char* button :
         {"cmdOptimal", "cmdOptimalWindows2", "cmdOptimalMisc", "cmdOptimalDfue"}) {
        for (const PresetStep& step : GoldenSteps(button)) {
            if (step.control == "chkWinAnimate" || step.control == "chkUnloadDll" ||
                step.control == "chk1RecycleBinDelete" || step.control == "chkLogOnAdmin") {
                continue;
            }
            if (step.control == "cboHTTP10") {
                composed.push_back("optOptimalDFUESets(1) = selected");
            }
            composed.push_back(LineOf(step));
        }
    }
    CHECK(LinesOf(GoldenSteps(AutoTuningButton)) == composed);
}
