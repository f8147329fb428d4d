#pragma once

#include <string>
#include <string_view>

namespace toolkit {
class Form;
}

namespace tweaks {

// The text that an option's control holds: that of a text box or a combo box, or the caption of a
// label. Asking for a name that is not on the form is a mistake in the program (runtime::Mistake).
std::string TextOfControl(const toolkit::Form& form, std::string_view name);
void SetTextOfControl(toolkit::Form& form, std::string_view name, const std::string& text);

}  // namespace tweaks
