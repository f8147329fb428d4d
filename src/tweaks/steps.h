#pragma once

#include "runtime/number.h"
#include "tweaks/option.h"

namespace platform {
struct Machine;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// What the steps of a pass work on.
struct PassContext {
    toolkit::Form& form;
    registry::Registry& registry;
    // The locale's, by which a text is a number or none.
    runtime::NumberSigns signs;
    // For messages, and for what a named step needs beside the registry.
    const platform::Machine& machine;
};

// Brings the value, or values, of one option into its control. A failure that the control's own
// event raises passes out.
void ReadOption(const PassContext& pass, const Option& option);

// Carries the control's state into the registry, whether or not it changed. A failure passes out.
void WriteOption(const PassContext& pass, const Option& option);

// A check box by its name.
bool IsOn(const PassContext& pass, std::string_view name);
void SetCheckBox(const PassContext& pass, std::string_view name, bool on);

// The ordinary read and write alone, for a named step that needs them beside its own doing.
void ReadByRow(const PassContext& pass, const Option& option);
void WriteByRow(const PassContext& pass, const Option& option);

}  // namespace tweaks
