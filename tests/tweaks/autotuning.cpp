// The dialogue of AutoTuning, and what its list leaves alone.
#include "tweaks/autotuning.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;
using platform::simulated::ShownMessage;

TEST_CASE_FIXTURE(Presets, "AutoTuning asks first and tells what is left to do") {
    Press(AutoTuningButton);
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{
              {"AutoTuning", "AutoTuning dieses Systems starten?", 36},
              {"AutoTuning",
               "AutoTuning erfolgreich ausgeführt.\r\n\r\nBitte stellen Sie die "
               "DFÜ-Verbindungsart manuell auf Ihren genutzten Verbindungstyp (ISDN, DSL ...) "
               "ein.\r\n\r\nBetätigen Sie dann den 'Übernehmen' Button um die Änderungen zu "
               "speichern!",
               64}});
}

TEST_CASE_FIXTURE(Presets, "No to AutoTuning changes no control and tells nothing") {
    AllOff();
    machine.messages.Answer("AutoTuning", platform::message::No);
    ChangeNotes changes(form);
    Press(AutoTuningButton);
    CHECK(changes.lines.empty());
    CHECK(machine.messages.Shown().size() == 1);
    CHECK(machine.journal.Count() == 1);
}

TEST_CASE_FIXTURE(Presets, "AutoTuning sets nothing while its question is open") {
    AllOff();
    PresetStates whileOpen;
    machine.messages.WhileOpen("AutoTuning", [&] {
        if (whileOpen.empty()) whileOpen = States();
    });
    const PresetStates before = States();
    Press(AutoTuningButton);
    CHECK(whileOpen == before);
    CHECK(States() != before);
}

TEST_CASE_FIXTURE(Presets, "AutoTuning leaves five controls that pages recommend on, off or grey") {
    for (const char* state : {"0", "1", "2"}) {
        const char* const left[] = {"chkWinAnimate", "chkUnloadDll", "chk1RecycleBinDelete",
                                    "chkLogOnAdmin", "chkDOSComp"};
        for (const char* name : left) Put(name, state);
        Press(AutoTuningButton);
        for (const char* name : left) {
            CAPTURE(name);
            CHECK(Shown(name) == state);
        }
    }
}

TEST_CASE_FIXTURE(Presets, "AutoTuning ends with Analog selected over the numbers of ISDN") {
    for (int type = 0; type < 5; ++type) {
        CAPTURE(type);
        Press("optOptimalDFUESets(" + std::to_string(type) + ")");
        Press(AutoTuningButton);
        CHECK(Shown(AnalogOption) == "selected");
        for (const PresetStep& step : GoldenSteps("optOptimalDFUESets(2)")) {
            CHECK(Shown(step.control) == step.value);
        }
    }
}

TEST_CASE_FIXTURE(Presets, "AutoTuning loads Analog before it overwrites it") {
    AllOff();
    ChangeNotes changes(form);
    Press(AutoTuningButton);
    const auto analog = std::find(changes.lines.begin(), changes.lines.end(),
                                  std::string("optOptimalDFUESets(1) = selected"));
    CHECK(Lines(analog, changes.lines.end()) ==
          Lines{"optOptimalDFUESets(1) = selected", "cboMTU = \"576\"", "txtRWIN = \"2144\"",
                "txtTTL = \"128\"", "cboHTTP10 = \"4\"", "cboHTTP11 = \"2\"", "chkAutoMTU = 1",
                "chkSACK = 1", "cboHTTP10 = \"8\"", "cboHTTP11 = \"6\"", "cboMTU = \"1472\"",
                "txtRWIN = \"5728\"", "txtRWIN = \"11680\"", "txtTTL = \"64\""});
}

TEST_CASE_FIXTURE(Presets, "AutoTuning over a selected Analog loads nothing in between") {
    Press(AnalogOption);
    Put("cboHTTP10", "\"99\"");
    Put("txtTTL", "\"99\"");
    ChangeNotes changes(form);
    Press(AutoTuningButton);
    for (const char* ofAnalog : {"cboHTTP10 = \"4\"", "txtTTL = \"128\""}) {
        CHECK(std::find(changes.lines.begin(), changes.lines.end(), ofAnalog) ==
              changes.lines.end());
    }
    CHECK(Shown("cboHTTP10") == "\"8\"");
}

TEST_CASE_FIXTURE(Presets, "the connection type chosen behind AutoTuning loads its numbers") {
    Press(AutoTuningButton);
    Press("optOptimalDFUESets(4)");
    for (const PresetStep& step : GoldenSteps("optOptimalDFUESets(4)")) {
        CHECK(Shown(step.control) == step.value);
    }
}
