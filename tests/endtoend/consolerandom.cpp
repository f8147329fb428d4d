// The console program over machines made by chance: what it says before, what it does, and the way
// back, to the last byte of the whole registry.
#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "endtoend/console.h"
#include "endtoend/everyoptionrun.h"
#include "endtoend/lines.h"
#include "endtoend/optiontable.h"
#include "endtoend/pages.h"
#include "endtoend/randommachine.h"
#include "endtoend/randomprofile.h"
#include "endtoend/tools.h"
#include "endtoend/wholeregistry.h"

namespace endtoend {
namespace {

// So many seeds from 1 on, or those that are asked for from outside.
template <typename Body>
void ForEachSeed(unsigned count, const Body& body) {
    const auto setting = [](const char* name, unsigned otherwise) {
        const char* text = std::getenv(name);
        return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
    };
    const unsigned first = setting("QUILLMORE_RANDOM_SEED", 1);
    count = setting("QUILLMORE_RANDOM_SAMPLES", count);
    SeeDesktop();
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    // What a run that was broken off has left.
    RemoveRandomKeys();
    for (unsigned seed = first; seed < first + count; ++seed) {
        INFO("seed " << seed);
        CHECK(Joined(body(seed, registrar)) == "");
    }
}

// Where the last line of a value's bytes holds only one, Wine's regedit has room for it and no
// more, and breaks its heap as it adds the end to a text that has none. There that one byte is put
// behind those before it; all the rest is handed over as the program wrote it.
std::string WithoutLonelyBytes(const std::string& file) {
    std::wstring text(reinterpret_cast<const wchar_t*>(file.data()), file.size() / sizeof(wchar_t));
    static const std::wstring wrapped = L"\\\r\n  ";
    for (std::size_t at = text.find(wrapped); at != text.npos; at = text.find(wrapped, at + 1)) {
        const std::size_t line = at + wrapped.size();
        if (text.compare(line + 2, 2, L"\r\n") == 0) text.erase(at, wrapped.size());
    }
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

void ImportWithRegedit(const std::string& path) {
    WriteFile(path, WithoutLonelyBytes(ReadFile(path)));
    Program(WindowsFolder() + "\\regedit.exe", "/S \"" + path + "\"").WaitForEnd();
}

// What is wrong in one sample, a line each.
class UndoneSample {
  public:
    explicit UndoneSample(unsigned seed) : dice_(seed), console_(workplace_) {
        PutRandomMachine(dice_);
        settings_ = RandomSettings(dice_);
        WriteFile(console_.Path("P.txt"), ProfileOf(settings_, dice_));
    }
    ~UndoneSample() { RemoveRandomKeys(); }

    std::vector<std::string> Wrong() {
        Predict();
        const WholeRegistry before = WholeRegistry::Now();
        Ask("backup A.reg", 0);
        const std::vector<std::string> files = console_.Files();
        const bool changes = Ask("plan P.txt", readFails_ ? 3 : 1) != "";
        Expect(files == console_.Files(), "plan left a file");
        Ask("plan P.txt /reg:B.reg", readFails_ ? 3 : 1);
        Compare("plan", before.DifferencesTo(WholeRegistry::Now()));
        Ask("apply P.txt /nobackup /yes", readFails_ ? 3 : 0);
        const WholeRegistry applied = WholeRegistry::Now();
        Expect(changes == !before.DifferencesTo(applied).empty(), "plan is not what apply does");
        Compare("what apply should have written",
                OptionDifferences(expected_, SnapshotOfOptions()));
        Ask("restore A.reg /yes", 0);
        Compare("restore", before.DifferencesTo(WholeRegistry::Now()));
        ImportWithRegedit(console_.Path("B.reg"));
        Compare("the import of the plan", applied.DifferencesButForEnds(WholeRegistry::Now()));
        ImportWithRegedit(console_.Path("A.reg"));
        Compare("the import of the backup", before.DifferencesButForEnds(WholeRegistry::Now()));
        return wrong_;
    }

  private:
    // By the golden tables alone.
    void Predict() {
        PredictedRegistry registry(SnapshotOfOptions());
        ControlStates states = DesignStates();
        readFails_ = PredictRead(registry, states).failure != 0;
        states["chkSHMediaDLL"] = "1";
        for (const auto& [control, state] : settings_) {
            // Shut without its driver, and left then. A pass that has ended before leaves it open.
            const bool isShut = control == "chkEnableAGP4x" && !readFails_ &&
                                !registry.HasKey({"HKLM", GraphicsDriverKey, ""});
            if (!isShut) states[control] = state;
        }
        PredictWrite(states, registry);
        expected_ = registry.State();
    }

    std::string Ask(const std::string& arguments, DWORD code) {
        const ConsoleRun run = console_.Run(arguments);
        Expect(run.code == code,
               arguments + " has exit code " + std::to_string(run.code) + ", " + run.err);
        return run.out;
    }

    void Compare(const std::string& what, const std::vector<std::string>& differences) {
        for (const std::string& line : differences) wrong_.push_back(what + ": " + line);
    }

    void Expect(bool holds, const std::string& otherwise) {
        if (!holds) wrong_.push_back(otherwise);
    }

    Dice dice_;
    const Workplace workplace_;
    const Console console_;
    ControlStates settings_;
    RegistryState expected_;
    bool readFails_ = false;
    std::vector<std::string> wrong_;
};

std::vector<std::string> WrongAtUndoing(unsigned seed, const StandIn& registrar) {
    std::vector<std::string> wrong = UndoneSample(seed).Wrong();
    if (registrar.WasStarted()) wrong.push_back("a process was started");
    return wrong;
}

TEST_CASE("random registries are undone to the byte and planned as they are applied") {
    ForEachSeed(30, WrongAtUndoing);
}

// What acts at once in the window is not done by the console program: the recycle bin's key goes or
// comes with a click, and the window stores its own settings.
bool IsOfTheWindowAlone(const std::string& difference) {
    static const std::vector<std::string> places = {
        "hklm\\software\\microsoft\\windows\\currentversion\\explorer\\desktop\\namespace\\"
        "{645ff040-5081-101b-9f08-00aa002f954e}",
        "hkcu\\software\\vb and vba program settings\\quillmore"};
    return std::any_of(places.begin(), places.end(),
                       [&](const std::string& place) { return difference.starts_with(place); });
}

std::vector<std::string> DifferencesOfPrograms(const WholeRegistry& ofConsole,
                                               const WholeRegistry& ofWindow) {
    std::vector<std::string> lines = ofConsole.DifferencesTo(ofWindow);
    std::erase_if(lines, IsOfTheWindowAlone);
    return lines;
}

// The window over the registry as it stands, open, whatever its read pass met with.
class WindowOver {
  public:
    explicit WindowOver(const Workplace& workplace) : program_(workplace.Executable()) {
        ControlStates states = DesignStates();
        const int failure = PredictRead(PredictedRegistry(SnapshotOfOptions()), states).failure;
        if (failure) AnswerBoxes(program_, {FailureBox(failure, "ReadRegistry")});
        program_.Wait("frmMain");
        Until("the start to end", [&] { return program_.Responds("frmMain"); });
        controls_.emplace(program_);
    }

    const Program& Running() const { return program_; }
    const OptionControls& Controls() const { return *controls_; }

    void Apply() const {
        PredictedRegistry registry(SnapshotOfOptions());
        const ControlStates shown = controls_->Shown();
        ApplyOptions(program_, shown, shown.at("txtALPassword"), PredictWrite(shown, registry));
    }

  private:
    Program program_;
    std::optional<OptionControls> controls_;
};

void PressRecommended(const WindowOver& window) {
    for (const auto& [name, page] : {std::pair("cmdOptimal", SystemPage),
                                     {"cmdOptimalWindows2", TweaksPage},
                                     {"cmdOptimalMisc", SecurityPage},
                                     {"cmdOptimalDfue", NetworkPage}}) {
        window.Running().OpenTab(page);
        // Sent, so that it is done when the call comes back.
        Send(window.Running().Wait(name), BM_CLICK);
    }
}

std::vector<std::string> WrongAtRecommending(unsigned seed, const StandIn&) {
    Dice dice(seed);
    const Workplace workplace;
    const Console console(workplace);
    PutRandomMachine(dice);
    const WholeRegistry before = WholeRegistry::Now();
    console.Run("backup A.reg");
    console.Run("apply /preset:empfohlen /nobackup /yes");
    const WholeRegistry ofConsole = WholeRegistry::Now();
    console.Run("restore A.reg /yes");
    std::vector<std::string> wrong = before.DifferencesTo(WholeRegistry::Now());
    if (wrong.empty()) {
        const WindowOver window(workplace);
        PressRecommended(window);
        window.Apply();
        wrong = DifferencesOfPrograms(ofConsole, WholeRegistry::Now());
    }
    RemoveRandomKeys();
    return wrong;
}

TEST_CASE("the recommended preset leaves what the four buttons and Apply leave in the window") {
    ForEachSeed(6, WrongAtRecommending);
}

// A label takes no text from outside, and a profile tells no text that goes along with a box.
std::vector<std::string> WrongAtProfile(unsigned seed, const StandIn&) {
    Dice dice(seed);
    const Workplace workplace;
    const Console console(workplace);
    PutRandomMachine(dice);
    ControlStates settings = RandomSettings(dice);
    std::erase_if(settings, [](const auto& entry) { return entry.first.starts_with("lbl"); });
    const WholeRegistry before = WholeRegistry::Now();
    console.Run("backup A.reg");
    WholeRegistry ofWindow = before;
    {
        const WindowOver window(workplace);
        ControlStates wanted = window.Controls().Shown();
        for (const auto& [control, state] : settings) wanted.at(control) = state;
        wanted.at("txtProductId") = window.Controls().Shown().at("txtProductId");
        window.Controls().Set(wanted);
        const ControlStates shown = window.Controls().Shown();
        for (auto& [control, state] : settings) state = shown.at(control);
        window.Apply();
        ofWindow = WholeRegistry::Now();
    }
    console.Run("restore A.reg /yes");
    std::vector<std::string> wrong = DifferencesOfPrograms(before, WholeRegistry::Now());
    WriteFile(console.Path("P.txt"), ProfileOf(settings, dice));
    const ConsoleRun run = console.Run("apply P.txt /nobackup /yes");
    if (run.code == 2) wrong.push_back(run.err);
    for (const std::string& line : DifferencesOfPrograms(WholeRegistry::Now(), ofWindow)) {
        wrong.push_back(line);
    }
    RemoveRandomKeys();
    return wrong;
}

TEST_CASE("a random profile leaves what the same controls and Apply leave in the window") {
    ForEachSeed(4, WrongAtProfile);
}

}  // namespace
}  // namespace endtoend
