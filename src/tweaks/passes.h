#pragma once

#include <span>
#include <string_view>

#include "platform/machine.h"
#include "registry/registry.h"
#include "toolkit/form.h"
#include "tweaks/steps.h"

namespace tweaks {

// The two passes over all options. They know no changed or unchanged option: every row runs on
// every pass.
//
// A registry call that cannot be carried out is no failure. A Failure (a control's own event, a
// text that is no number) passes out at once: all after that step stays undone, and the form's
// pointer stays the hourglass, as it is set back on the normal exit alone.
class Passes {
  public:
    // `form` holds the controls of every page of the catalogue.
    Passes(toolkit::Form& form, const platform::Machine& machine);

    // Brings the system's state into the controls.
    void Read();
    // Carries the controls' state into the system.
    void Write();

  private:
    using OptionStep = void (*)(const PassContext&, const Option&);
    void Walk(std::span<const std::string_view> order, OptionStep step);

    toolkit::Form& form_;
    platform::Machine machine_;
    registry::Registry registry_;
};

}  // namespace tweaks
