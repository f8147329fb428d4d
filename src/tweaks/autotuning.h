#pragma once

namespace platform {
struct Machine;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// The one press that recommends on all pages: asks, sets the controls and tells the user to press
// "Übernehmen", as nothing has reached the system yet. A step that fails is passed over in silence,
// unlike those of the buttons "Empfohlen", and success is told all the same. Only Yes begins.
void AutoTuning(toolkit::Form& form, const platform::Machine& machine);

}  // namespace tweaks
