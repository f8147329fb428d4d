#include "tweaks/controltext.h"

#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tweaks {

std::string TextOfControl(const toolkit::Form& form, std::string_view name) {
    const toolkit::Control* control = form.FindControl(name);
    if (auto* combo = dynamic_cast<const toolkit::ComboBox*>(control)) return combo->Text();
    if (auto* label = dynamic_cast<const toolkit::Label*>(control)) return label->Caption();
    return form.Find<toolkit::TextBox>(name).Text();
}

void SetTextOfControl(toolkit::Form& form, std::string_view name, const std::string& text) {
    toolkit::Control* control = form.FindControl(name);
    if (auto* box = dynamic_cast<toolkit::TextBox*>(control)) return box->SetText(text);
    if (auto* combo = dynamic_cast<toolkit::ComboBox*>(control)) return combo->SetText(text);
    if (auto* label = dynamic_cast<toolkit::Label*>(control)) return label->SetCaption(text);
    form.Find<toolkit::TextBox>(name).SetText(text);
}

}  // namespace tweaks
