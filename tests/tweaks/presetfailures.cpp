// A control whose setting fails, in every place of every preset.
#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "support/golden.h"
#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

void Fail() {
    throw runtime::Failure(runtime::InvalidProcedureCall);
}

// The number of the failure that came out of the press; 0 for none.
int FailureOfPress(Presets& program, const std::string& preset) {
    return FailureOf([&] { program.Press(preset); });
}

std::size_t GoldenLinesOfPageButtons() {
    std::size_t count = 0;
    for (const auto& line : golden::PresetLines(FileText("tests/golden/presets.tsv"))) {
        count += line.preset.starts_with("cmd") && line.preset != AutoTuningButton;
    }
    return count;
}

Lines BoxesShown(const Presets& program) {
    Lines titles;
    for (const auto& box : program.machine.messages.Shown()) {
        titles.push_back(box.title + ": " + box.text.substr(0, box.text.find('.')));
    }
    return titles;
}

}  // namespace

TEST_CASE("whichever step fails ends its button there, with all before it set and nothing told") {
    std::size_t tried = 0;
    for (const std::string& preset : GoldenPresets()) {
        if (!preset.starts_with("cmd") || preset == AutoTuningButton) continue;
        const std::vector<PresetStep> steps = GoldenSteps(preset);
        for (std::size_t failing = 0; failing < steps.size(); ++failing) {
            INFO(preset << " at " << steps[failing].control);
            Presets program;
            program.Isolate();
            const PresetStates before = program.States();
            program.EventOf(steps[failing].control) = Fail;
            CHECK(FailureOfPress(program, preset) == runtime::InvalidProcedureCall);
            for (std::size_t at = 0; at < steps.size(); ++at) {
                CAPTURE(steps[at].control);
                CHECK(program.Shown(steps[at].control) ==
                      (at <= failing ? steps[at].value : before.at(steps[at].control)));
            }
            CHECK(BoxesShown(program).empty());
            ++tried;
        }
    }
    CHECK(tried > 0);
    CHECK(tried == GoldenLinesOfPageButtons());
}

TEST_CASE("whichever step fails is passed over by AutoTuning, which sets all the others") {
    const std::vector<PresetStep> steps = GoldenSteps(AutoTuningButton);
    REQUIRE_FALSE(steps.empty());
    for (const PresetStep& failing : steps) {
        CAPTURE(failing.control);
        Presets program;
        program.Isolate();
        program.EventOf(failing.control) = Fail;
        CHECK(FailureOfPress(program, AutoTuningButton) == 0);
        for (const PresetStep& step : steps) {
            CAPTURE(step.control);
            CHECK(program.Shown(step.control) == step.value);
        }
        CHECK(BoxesShown(program) == Lines{"AutoTuning: AutoTuning dieses Systems starten?",
                                           "AutoTuning: AutoTuning erfolgreich ausgeführt"});
    }
}

TEST_CASE("AutoTuning with every step failing still tells success") {
    Presets program;
    program.Isolate();
    for (const auto& [name, shown] : program.States()) program.EventOf(name) = Fail;
    CHECK(FailureOfPress(program, AutoTuningButton) == 0);
    for (const PresetStep& step : GoldenSteps(AutoTuningButton)) {
        CHECK(program.Shown(step.control) == step.value);
    }
    CHECK(BoxesShown(program).size() == 2);
}

TEST_CASE_FIXTURE(Presets, "a UPnP command that does not start ends the recommendation there") {
    AllOff();
    machine.faults.FailOn("regsvr32.exe", runtime::FileNotFound);
    CHECK(FailureOfPress(*this, "cmdOptimalMisc") == runtime::FileNotFound);
    CHECK(Shown("chkPageFileDelete") == "1");
    CHECK(Shown("chkSecureWindows") == "1");
    CHECK(Shown("chkWindowsUpdate") == "0");
    CHECK(Shown("chkClearRecentDocs") == "0");
}

TEST_CASE_FIXTURE(Presets, "a UPnP command that does not start does not hold AutoTuning up") {
    AllOff();
    machine.faults.FailOn("regsvr32.exe", runtime::FileNotFound);
    CHECK(FailureOfPress(*this, AutoTuningButton) == 0);
    CHECK(Shown("chkSecureWindows") == "1");
    CHECK(Shown("chkClearRecentDocs") == "1");
    CHECK(Shown("txtTTL") == "\"64\"");
}

TEST_CASE_FIXTURE(Presets,
                  "a missing Sysoc.inf ends the standard of the page Tweaks in the middle") {
    AllOn();
    machine.files.Take("C:\\WINDOWS\\inf\\Sysoc.inf");
    CHECK(FailureOfPress(*this, "cmdNormalWindows2") == runtime::FileNotFound);
    CHECK(Shown("chkHideWinComponents") == "0");
    CHECK(Shown("chkEncryptionContext") == "0");
    CHECK(Shown("chkCascadeExplorer") == "1");
    CHECK(Shown("txtTimeOut") == "\"7\"");
}

TEST_CASE_FIXTURE(Presets, "a failure while Analog is loaded leaves the rest of Analog out") {
    AllOff();
    EventOf("txtTTL") = Fail;
    CHECK(FailureOfPress(*this, AnalogOption) == runtime::InvalidProcedureCall);
    CHECK(Shown(AnalogOption) == "selected");
    CHECK(Shown("txtRWIN") == "\"2144\"");
    CHECK(Shown("txtTTL") == "\"128\"");
    CHECK(Shown("cboHTTP10") == "\"\"");
    CHECK(Shown("chkSACK") == "0");
}

TEST_CASE_FIXTURE(Presets, "AutoTuning goes on behind an Analog that could not be loaded") {
    AllOff();
    EventOf("txtTTL") = Fail;
    CHECK(FailureOfPress(*this, AutoTuningButton) == 0);
    CHECK(Shown(AnalogOption) == "selected");
    CHECK(Shown("cboHTTP10") == "\"8\"");
    CHECK(Shown("chkSACK") == "1");
    CHECK(Shown("txtRWIN") == "\"11680\"");
}

// The standard's types have no list of their own to stop: what is selected runs its row.
TEST_CASE("whichever step fails ends the loading of a connection type there") {
    for (const std::string& type : GoldenPresets()) {
        if (!type.starts_with("opt")) continue;
        const std::vector<PresetStep> steps = GoldenSteps(type);
        REQUIRE(steps.size() == 8);
        for (std::size_t failing = 0; failing < steps.size(); ++failing) {
            INFO(type << " at " << steps[failing].control);
            Presets program;
            const auto load = program.EventOf(type);
            program.Isolate();
            program.EventOf(type) = load;
            const PresetStates before = program.States();
            program.EventOf(steps[failing].control) = Fail;
            CHECK(FailureOfPress(program, type) == runtime::InvalidProcedureCall);
            CHECK(program.Shown(type) == "selected");
            for (std::size_t at = 0; at < steps.size(); ++at) {
                CAPTURE(steps[at].control);
                CHECK(program.Shown(steps[at].control) ==
                      (at <= failing ? steps[at].value : before.at(steps[at].control)));
            }
        }
    }
}

TEST_CASE_FIXTURE(Presets, "a success that cannot be told is passed over, and all is set") {
    Isolate();
    machine.messages.WhileOpen(
        "AutoTuning", [&] { machine.faults.FailAll("MessageBox", runtime::InvalidProcedureCall); });
    CHECK(FailureOfPress(*this, AutoTuningButton) == 0);
    for (const PresetStep& step : GoldenSteps(AutoTuningButton)) {
        CHECK(Shown(step.control) == step.value);
    }
    CHECK(BoxesShown(*this).size() == 1);
}

TEST_CASE_FIXTURE(Presets, "a question that cannot be shown begins no AutoTuning") {
    AllOff();
    const PresetStates before = States();
    machine.faults.FailAll("MessageBox", runtime::InvalidProcedureCall);
    CHECK(FailureOfPress(*this, AutoTuningButton) == 0);
    CHECK(States() == before);
}
