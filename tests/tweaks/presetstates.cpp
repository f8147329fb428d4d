// Every preset from three states of the controls: what they say behind it, and each change on the
// way, in order, by a model of what one control does to another.
#include <doctest/doctest.h>

#include <cstdlib>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

std::string Quoted(int number) {
    return '"' + std::to_string(number) + '"';
}

class Model {
  public:
    explicit Model(PresetStates states) : states(std::move(states)) {}

    void Run(const std::string& preset) {
        if (preset.starts_with("opt")) return Set(preset, "selected");
        for (const PresetStep& step : GoldenSteps(preset)) Set(step.control, step.value);
    }

    PresetStates states;
    Lines changes;

  private:
    // A value that stays as it is changes nothing else either.
    void Set(const std::string& control, const std::string& value) {
        if (states.at(control) == value) return;
        states[control] = value;
        changes.push_back(control + " = " + value);
        if (control == "cboMTU") {
            Set("txtRWIN", Quoted((std::atoi(value.c_str() + 1) - 40) * 4));
        } else if (control == "txtStartmenu") {
            Set("sldStartmenu", value.substr(1, value.size() - 2));
        } else if (control == "txtLevelValue") {
            Set("Level", value.substr(1, value.size() - 2));
        } else if (control == "sldStartmenu") {
            Set("txtStartmenu", '"' + value + '"');
        } else if (control == "Level") {
            Set("txtLevelValue", '"' + value + '"');
        } else if (control.starts_with("opt") && value == "selected") {
            Select(control);
        }
    }

    void Select(const std::string& type) {
        for (int index = 0; index < 5; ++index) {
            const std::string other = "optOptimalDFUESets(" + std::to_string(index) + ")";
            if (other != type) Set(other, "not selected");
        }
        for (const PresetStep& step : GoldenSteps(type)) Set(step.control, step.value);
    }
};

void CheckFrom(void (*prepare)(Presets&)) {
    for (const std::string& preset : GoldenPresets()) {
        CAPTURE(preset);
        Presets program;
        prepare(program);
        Model model(program.States());
        model.Run(preset);
        ChangeNotes changes(program.form);
        program.Press(preset);
        CHECK(changes.lines == model.changes);
        CHECK(program.States() == model.states);

        changes.lines.clear();
        program.Press(preset);
        INFO("pressed once more");
        CHECK(changes.lines.empty());
    }
}

}  // namespace

TEST_CASE("every preset from all off: each change in its order, each control behind it") {
    CheckFrom([](Presets& program) { program.AllOff(); });
}

TEST_CASE("every preset from all on: each change in its order, each control behind it") {
    CheckFrom([](Presets& program) { program.AllOn(); });
}

TEST_CASE("every preset from the baseline: each change in its order, each control behind it") {
    CheckFrom([](Presets& program) { program.Baseline(); });
}

TEST_CASE_FIXTURE(Presets, "a derived window size shows on the way and is overwritten") {
    AllOff();
    ChangeNotes changes(form);
    Press("cmdOptimalDfue");
    CHECK(
        Lines(changes.lines.end() - 4, changes.lines.end()) ==
        Lines{"cboMTU = \"1472\"", "txtRWIN = \"5728\"", "txtRWIN = \"11680\"", "txtTTL = \"64\""});
}

TEST_CASE_FIXTURE(Presets, "the derived window size of Analog is the type's own") {
    AllOff();
    ChangeNotes changes(form);
    Press(AnalogOption);
    CHECK(changes.lines == Lines{"optOptimalDFUESets(1) = selected", "cboMTU = \"576\"",
                                 "txtRWIN = \"2144\"", "txtTTL = \"128\"", "cboHTTP10 = \"4\"",
                                 "cboHTTP11 = \"2\"", "chkAutoMTU = 1", "chkSACK = 1"});
}

TEST_CASE_FIXTURE(Presets, "the standard of the page DFÜ loads Analog on its way") {
    AllOn();
    ChangeNotes changes(form);
    Press("cmdStandardDfue");
    CHECK(changes.lines ==
          Lines{"chkNotifyDownloadReady = 0",
                "chkScriptDebugging = 0",
                "chkIEWinPos = 0",
                "chkNetworkSpeed = 0",
                "chkNetworkTasks = 0",
                "chkDNSSpeed = 0",
                "chkTCPTuning = 0",
                "chkOutlookTray = 0",
                "optOptimalDFUESets(1) = selected",
                "optOptimalDFUESets(4) = not selected",
                "cboMTU = \"576\"",
                "txtRWIN = \"2144\"",
                "txtTTL = \"128\"",
                "cboHTTP10 = \"4\"",
                "cboHTTP11 = \"2\"",
                "chkMUTBH = 0",
                "chkIEExtensions = 0",
                "txtExtensions = \"\"",
                "chkIPForwarding = 0",
                "txtIETitel = \"http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch\""});
}
