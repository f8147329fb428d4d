#include "tweaks/keyfilters.h"

#include "platform/beeper.h"
#include "toolkit/combobox.h"
#include "toolkit/form.h"

namespace tweaks {
namespace {

constexpr char16_t Backspace = 8;

enum class Passing { Digits, DigitsAndBackspace };

struct FilteredField {
    const char* name;
    Passing passing;
};

// The two boxes beside a slider refuse Backspace on purpose: a digit typed there can only be taken
// back with the Delete key, the mouse or the slider.
constexpr FilteredField Fields[] = {
    {"cboMTU", Passing::DigitsAndBackspace},    {"cboHTTP10", Passing::DigitsAndBackspace},
    {"cboHTTP11", Passing::DigitsAndBackspace}, {"txtRWIN", Passing::DigitsAndBackspace},
    {"txtTTL", Passing::DigitsAndBackspace},    {"txtTimeOut", Passing::DigitsAndBackspace},
    {"txtLevelValue", Passing::Digits},         {"txtStartmenu", Passing::Digits},
};

bool Passes(char16_t character, Passing passing) {
    if (character >= u'0' && character <= u'9') return true;
    return character == Backspace && passing == Passing::DigitsAndBackspace;
}

toolkit::KeyHandler* KeysOf(toolkit::Control* control) {
    if (auto* box = dynamic_cast<toolkit::TextBox*>(control)) return &box->onKeyPress;
    if (auto* box = dynamic_cast<toolkit::ComboBox*>(control)) return &box->onKeyPress;
    return nullptr;
}

}  // namespace

void ConnectKeyFilters(toolkit::Form& form, platform::Beeper& beeper) {
    for (const auto& [name, passing] : Fields) {
        toolkit::KeyHandler* keys = KeysOf(form.FindControl(name));
        if (!keys) continue;
        *keys = [&beeper, passing = passing](char16_t& character) {
            if (Passes(character, passing)) return;
            character = 0;
            beeper.Beep();
        };
    }
}

}  // namespace tweaks
