#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controls/chameleonbutton.h"
#include "tweaks/autotuning.h"
#include "tweaks/networksets.h"
#include "tweaks/pagefixture.h"
#include "tweaks/presets.h"
#include "tweaks/sideeffects.h"

// Presets seen from outside: what is pressed, what the controls say then, and in which order they
// changed on the way.
namespace tweak_tests {

using Lines = std::vector<std::string>;

// A control and its value in the words of tests/golden/presets.tsv.
struct PresetStep {
    std::string control;
    std::string value;
};

// The names of that file, each once, in its order; and the steps of one of them, with "1" or "0" in
// place of the memory test's outcome.
const Lines& GoldenPresets();
std::vector<PresetStep> GoldenSteps(const std::string& preset, bool passesMemoryTest = true);

// "control = value".
std::string LineOf(const PresetStep& step);
Lines LinesOf(const std::vector<PresetStep>& steps);

inline constexpr char AutoTuningButton[] = "cmdSetAllOptimal";
inline constexpr char AnalogOption[] = "optOptimalDFUESets(1)";

// The controls that hold a value, by name: "0" to "2" of a check box, "selected" or "not selected"
// of an option button, a slider's number, and any text in quotation marks.
using PresetStates = std::map<std::string, std::string>;

// Notes each change of a value, in the place where otherwise the native windows are.
class ChangeNotes {
  public:
    explicit ChangeNotes(toolkit::Form& form);
    // Notes as well, at its place between them, what the machine was asked to do: settings, boxes,
    // processes, files, values, the taskbar's opacity and the memory test. What only looks, and the
    // numbers of handles, are left out.
    ChangeNotes(toolkit::Form& form, const platform::simulated::Journal& journal);
    ~ChangeNotes();
    ChangeNotes(const ChangeNotes&) = delete;
    ChangeNotes& operator=(const ChangeNotes&) = delete;

    // "control = value" in the order of the changes.
    Lines lines;

    // Notes what was done behind the last change.
    void CatchUp();

  private:
    class View;
    const platform::simulated::Journal* journal_ = nullptr;
    std::size_t read_ = 0;
    std::vector<std::unique_ptr<View>> views_;
};

// All options with whatever acts at once, the presets, and a user who wants AutoTuning.
struct Presets : Options {
    Presets();

    // A button, a connection type or AutoTuning, by its name.
    void Press(const std::string& preset);

    std::string Shown(const std::string& control);
    // By force, in the words of the file; events run as ever.
    void Put(const std::string& control, const std::string& value);
    PresetStates States();

    // Every check box at 0, every text empty, the sliders at their lowest, no type selected; and
    // every check box at 1, every text "7", the sliders at their highest, the last type selected.
    void AllOff() { PutAll("0", "\"\"", false); }
    void AllOn() { PutAll("1", "\"7\"", true); }
    void Baseline();

    // From here on nothing happens but what a preset itself does: no control acts on another. Every
    // control holds what no preset gives it.
    void Isolate();
    // What a control does when its value changes.
    toolkit::Handler& EventOf(const std::string& control);

  private:
    void PutAll(const char* box, const char* text, bool highest);
};

}  // namespace tweak_tests
