#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cmd/change.h"
#include "cmd/notedregistry.h"
#include "platform/dryrun/machine.h"
#include "platform/machine.h"
#include "tweaks/optionsform.h"
#include "tweaks/passes.h"

namespace cmd {

// The program's window as far as it has options, without a window: it reads the machine's state,
// its controls can be set, and what its Apply would write is told instead of being written.
// Whatever acts at once in the window (the taskbar, the icons, the list of Windows components, the
// libraries, the recycle bin) does not act here.
class OptionsWindow {
  public:
    explicit OptionsWindow(const platform::Machine& machine);
    OptionsWindow(const OptionsWindow&) = delete;
    OptionsWindow& operator=(const OptionsWindow&) = delete;

    // As the window does at its start.
    void Read();

    // The presets' names as the user gives them: "standard", "empfohlen:tweaks". Throws BadInput
    // for any other. A preset sets the controls as its button does.
    void UsePreset(std::string_view name);
    static void CheckPreset(std::string_view name);

    std::string Caption(std::string_view control) const;
    // "0" or "1" of a check box, the text of all others.
    std::string Shown(std::string_view control) const;
    // What the user could choose or type there, and the pass would write as it stands; otherwise
    // throws BadInput with the reason. What the control shows anyway is always right. A control
    // that is shut, as for want of its driver, is passed over with a complaint.
    void Set(std::string_view control, const std::string& value);

    // What the write pass would write now, what is there already included; see ReadBefore. It can
    // be asked once.
    Changes Write();

    // What went wrong so far: places that could not be read, sentences for the user, among them
    // the messages that the pass shows in the window.
    const Refusals& Refused() const { return registry_.Refused(); }
    const std::vector<std::string>& Complaints() const { return complaints_; }
    // Whether a pass or a preset ended before its end.
    bool Failed() const { return failed_; }

    // Whether the pass wants a number of the control.
    static bool WantsNumber(std::string_view control);

  private:
    // A pass, or a preset: what fails ends it.
    template <typename Body>
    void Report(const char* procedure, const Body& body);
    void PressButton(const char* name);
    void CheckNumber(std::string_view control, const std::string& text) const;

    NotedRegistry registry_;
    platform::dryrun::Machine dry_;
    tweaks::OptionsForm form_;
    tweaks::Passes passes_;
    std::vector<std::string> complaints_;
    bool failed_ = false;
};

}  // namespace cmd
