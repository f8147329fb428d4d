#pragma once

#include <string_view>

#include "platform/machine.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"
#include "tweaks/networkpage.h"
#include "tweaks/pathspage.h"
#include "tweaks/securitypage.h"
#include "tweaks/systempage.h"
#include "tweaks/tweakspage.h"

namespace tweak_tests {

// A form with every page that has options, on a given machine.
struct OptionsForm : toolkit::Form {
    explicit OptionsForm(const platform::Machine& machine)
        : Form(machine.forms, "frmMain", "", {}) {
        SetLayout(toolkit::Column({
            tweaks::AddSystemPage(*this, machine),
            tweaks::AddTweaksPage(*this, machine),
            tweaks::AddPathsPage(*this, machine),
            tweaks::AddSecurityPage(*this, machine),
            tweaks::AddNetworkPage(*this, machine),
        }));
    }

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
