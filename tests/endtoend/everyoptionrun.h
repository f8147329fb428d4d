#pragma once

#include <memory>
#include <string>
#include <vector>

#include "endtoend/everyoptioncontrols.h"
#include "endtoend/workplace.h"

namespace endtoend {

// Wine describes its display in the registry, and puts a folder back in its place, when a first
// window comes up. From now on one has, and the desktop stays as long as this program runs.
void SeeDesktop();

// All keys that an option reads or writes and those above them, with their values and the names of
// the keys below. The whole machine takes seconds.
RegistryState SnapshotOfOptions();

// As Differences, but for what neither an option nor a test is to blame for: the program's own
// settings, and what Wine notes down for itself.
std::vector<std::string> OptionDifferences(const RegistryState& before, const RegistryState& after);

// One run of the program over the machine as it stands, looked at from both ends: what the controls
// show, and what the registry holds behind an Apply.
class OptionRun {
  public:
    using Look = RegistryState (*)();

    // Starts the program and compares its controls with what the registry holds. `look` takes the
    // snapshots that are compared.
    explicit OptionRun(const Workplace& workplace, Look look = SnapshotOfOptions);

    const Program& Running() const { return *program_; }
    const ControlStates& Controls() const { return states_; }
    bool Enabled(const std::string& control) const { return controls_->Enabled(control); }

    // Sets the controls that differ, as far as a user could, and compares all.
    void Set(ControlStates wanted);

    // Holds Apply's dialogue and compares the registry, the controls and the settings. A
    // `wrongPassword` is given where one is asked for.
    void Apply(bool wrongPassword = false);

    // What was not as it should be, one line each.
    const std::vector<std::string>& Wrong() const { return wrong_; }

    // What the last Apply had to bring.
    const PassOutcome& Outcome() const { return outcome_; }
    // Whether its pass was begun at all.
    bool Began() const { return began_; }

  private:
    void CompareControls(const std::string& when);
    void CompareRegistry(const PredictedRegistry& expected);
    void CompareLibrary(bool passed);

    const Workplace& workplace_;
    Look look_;
    RegistryState before_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<OptionControls> controls_;
    ControlStates states_;
    PassOutcome outcome_;
    bool began_ = false;
    std::vector<std::string> wrong_;
};

}  // namespace endtoend
