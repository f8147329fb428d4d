#pragma once

namespace platform {
struct Machine;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// Connects the controls whose own events act at once, without waiting for Apply, whoever changes
// them: the user, a preset, a setting that comes back at start-up. Controls that the form lacks are
// passed over, so that a form with some of the pages only works too.
//
// None of these events has a guard of its own: a failure passes to whoever changed the control,
// whose value has changed by then and, where it is remembered, has been stored.
void ConnectSideEffects(toolkit::Form& form, const platform::Machine& machine);

}  // namespace tweaks
