#pragma once

#include <string_view>

#include "toolkit/controls.h"
#include "tweaks/controltext.h"
#include "tweaks/optionsform.h"

namespace tweak_tests {

struct OptionsForm : tweaks::OptionsForm {
    using tweaks::OptionsForm::OptionsForm;

    toolkit::CheckBox& Check(std::string_view name) { return Find<toolkit::CheckBox>(name); }
    toolkit::TextBox& Box(std::string_view name) { return Find<toolkit::TextBox>(name); }

    // Numbers where the write pass asks for some, so that it complains about nothing.
    void FillNumbers() {
        for (const char* name : {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"}) {
            tweaks::SetTextOfControl(*this, name, "64");
        }
    }
};

}  // namespace tweak_tests
