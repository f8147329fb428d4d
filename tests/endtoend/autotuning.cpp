#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/everyoptionrun.h"
#include "endtoend/lines.h"
#include "endtoend/optiontable.h"
#include "endtoend/registrydump.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "support/golden.h"

// The presets in the real window, and the registry behind an Apply.
namespace endtoend {
namespace {

constexpr char TuningTitle[] = "AutoTuning";
constexpr char UnregisterUpnp[] = "regsvr32.exe %windir%\\system32\\upnp.dll /u /s";

struct Preset {
    const char* button;
    int page;
};

constexpr Preset Presets[] = {
    {"cmdNormal", 0},          {"cmdOptimal", 0},     {"cmdNormalWindows2", 1},
    {"cmdOptimalWindows2", 1}, {"cmdDefaultMisc", 4}, {"cmdOptimalMisc", 4},
    {"cmdStandardDfue", 5},    {"cmdOptimalDfue", 5}, {"cmdExtensionDefault", 5},
};

// What must show behind a preset: the options, and what stands on the pages beside them, which
// stores itself or nothing at all.
struct Behaviour {
    ControlStates options;
    ControlStates others;
};

Behaviour Behind(const std::string& preset, ControlStates states) {
    std::size_t found = 0;
    ControlStates others;
    for (auto& [name, control, value] :
         golden::PresetLines(ReadFile(OwnFolder() + "\\presets.tsv"))) {
        if (name != preset) continue;
        ++found;
        if (value == "memory > 256000") value = "1";
        if (value.starts_with('"')) value = value.substr(1, value.size() - 2);
        (states.contains(control) ? states : others)[control] = value;
    }
    if (found == 0) throw Failed("there is no preset " + preset);
    return {states, others};
}

// On whichever page it stands.
bool IsChecked(const Program& program, const std::string& control) {
    const HWND window = program.Find(control);
    if (!window) throw Failed("there is no " + control);
    return Send(window, BM_GETCHECK) == BST_CHECKED;
}

// A name that is no such control ends the test.
std::string ShownBeside(const Program& program, const std::string& control) {
    if (control == "Level") {
        return std::to_string(Send(program.Find(control), TBM_GETPOS));
    }
    if (control.starts_with("chk")) return IsChecked(program, control) ? "1" : "0";
    if (control.starts_with("opt"))
        return IsChecked(program, control) ? "selected" : "not selected";
    if (control.starts_with("txt")) return program.Text(control);
    throw Failed("a preset sets an unknown control " + control);
}

std::string WrongBeside(const Program& program, const ControlStates& others) {
    std::string wrong;
    for (const auto& [control, value] : others) {
        const std::string shown = ShownBeside(program, control);
        if (shown != value) wrong += control + " shows " + shown + ", not " + value + '\n';
    }
    return wrong;
}

void Tune(const Program& program) {
    program.Click("cmdSetAllOptimal");
    AnswerBoxes(program,
                {{TuningTitle, "AutoTuning dieses Systems starten?", IDYES},
                 {TuningTitle,
                  "AutoTuning erfolgreich ausgeführt.\r\n\r\nBitte stellen Sie die "
                  "DFÜ-Verbindungsart manuell auf Ihren genutzten Verbindungstyp (ISDN, DSL ...) "
                  "ein.\r\n\r\nBetätigen Sie dann den 'Übernehmen' Button um die Änderungen zu "
                  "speichern!",
                  IDOK}});
}

TEST_CASE("AutoTuning and Apply bring exactly the recommended values into the registry") {
    SeeDesktop();
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    const Workplace workplace;
    const RegistryState before = SnapshotOfMachine();
    const OpenProgram program(workplace);
    const OptionControls controls(program);
    const auto [expected, others] = Behind("cmdSetAllOptimal", controls.Shown());
    CHECK(others.contains("optOptimalDFUESets(1)"));
    CHECK(others.contains("chkSecureWindows"));
    CHECK(WrongBeside(program, others) != "");
    CHECK(Joined(WrongStates(expected, controls.Shown())) != "");

    Tune(program);
    CHECK(registrar.WaitStart().commandLine == UnregisterUpnp);
    CHECK(Joined(WrongStates(expected, controls.Shown())) == "");
    CHECK(WrongBeside(program, others) == "");
    CHECK(Joined(OptionDifferences(before, SnapshotOfMachine())) == "");
    CHECK(workplace.Stored("Options", "TrayIcon") == "(absent)");

    PredictedRegistry registry(before);
    const PassOutcome outcome = PredictWrite(expected, registry);
    CHECK(outcome.complaints.empty());
    CHECK(Joined(Differences(before, registry.State())) != "");
    ApplyOptions(program, expected, "", outcome);
    CHECK(Joined(OptionDifferences(registry.State(), SnapshotOfMachine())) == "");
    registrar.WaitStart();
    CHECK(WrongBeside(program, others) == "");
    for (const int type : {0, 2, 3, 4}) {
        CHECK_FALSE(IsChecked(program, "optOptimalDFUESets(" + std::to_string(type) + ")"));
    }
}

TEST_CASE("AutoTuning leaves Analog selected over the numbers of ISDN; DSL loads its own") {
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(5);
    program.Click("optOptimalDFUESets(3)");
    Until("the numbers of the network", [&] { return program.Text("cboMTU") == "3000"; });
    Tune(program);
    registrar.WaitStart();
    CHECK(program.Checked("optOptimalDFUESets(1)"));
    CHECK_FALSE(program.Checked("optOptimalDFUESets(3)"));
    CHECK(program.Text("cboMTU") == "1472");
    CHECK(program.Text("txtRWIN") == "11680");
    CHECK(program.Text("txtTTL") == "64");
    CHECK(program.Text("cboHTTP10") == "8");
    CHECK(program.Text("cboHTTP11") == "6");
    program.Click("optOptimalDFUESets(4)");
    Until("the numbers of DSL", [&] { return program.Text("cboHTTP11") == "8"; });
    CHECK(program.Text("cboMTU") == "1492");
    CHECK(program.Text("txtRWIN") == "32767");
}

TEST_CASE("No to AutoTuning leaves every control as it was") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const OptionControls controls(program);
    const ControlStates before = controls.Shown();
    program.Click("cmdSetAllOptimal");
    const MessageBox question = program.Answer(TuningTitle, IDNO);
    CHECK(question.buttons == std::vector<int>{IDYES, IDNO});
    Until("the window to be free", [&] { return program.Responds("frmMain"); });
    CHECK(program.Box().window == nullptr);
    CHECK(Joined(WrongStates(before, controls.Shown())) == "");
}

TEST_CASE("each button of the pages shows its preset in the real controls, and nothing else") {
    SeeDesktop();
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    const Workplace workplace;
    const RegistryState before = SnapshotOfOptions();
    const OpenProgram program(workplace);
    const OptionControls controls(program);
    for (const Preset& preset : Presets) {
        CAPTURE(preset.button);
        const auto [expected, others] = Behind(preset.button, controls.Shown());
        program.OpenTab(preset.page);
        program.Click(preset.button);
        Until("the button to be done", [&] {
            return program.Box().window || (WrongStates(expected, controls.Shown()).empty() &&
                                            WrongBeside(program, others).empty());
        });
        CHECK(program.Box().window == nullptr);
        CHECK(Joined(WrongStates(expected, controls.Shown())) == "");
        CHECK(WrongBeside(program, others) == "");
    }
    CHECK(Joined(OptionDifferences(before, SnapshotOfOptions())) == "");
}

// The box of the components cannot do its work without the file.
TEST_CASE("a failing step ends a button in the platform's message, but not AutoTuning") {
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    const Workplace workplace;
    const EmptyPlace place(WindowsFolder() + "\\inf\\Sysoc.inf");
    const OpenProgram program(workplace);
    const auto checkComponents = [&] {
        program.OpenTab(1);
        program.Click("chkHideWinComponents");
        CHECK(program.Answer("Quillmore", IDOK).text.starts_with("Laufzeitfehler '53'"));
        CHECK(program.Checked("chkHideWinComponents"));
    };
    checkComponents();
    program.SetChecked("chkBalloonTipps", false);
    program.SetChecked("chkDisableThumbnails", false);
    program.Click("cmdNormalWindows2");
    CHECK(program.Answer("Quillmore", IDOK).text.starts_with("Laufzeitfehler '53'"));
    CHECK(program.Checked("chkBalloonTipps"));
    CHECK_FALSE(program.Checked("chkHideWinComponents"));
    CHECK_FALSE(program.Checked("chkDisableThumbnails"));

    checkComponents();
    Tune(program);
    registrar.WaitStart();
    CHECK_FALSE(program.Checked("chkHideWinComponents"));
    CHECK(program.Checked("chkDisableThumbnails"));
}

}  // namespace
}  // namespace endtoend
