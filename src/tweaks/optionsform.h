#pragma once

#include "platform/machine.h"
#include "toolkit/form.h"
#include "tweaks/networkpage.h"
#include "tweaks/pathspage.h"
#include "tweaks/securitypage.h"
#include "tweaks/systempage.h"
#include "tweaks/tweakspage.h"

namespace tweaks {

// Every page that has options, and nothing else: what both passes need, for whoever runs them
// without the program's window. Nothing is connected that acts beyond the controls of one page.
class OptionsForm : public toolkit::Form {
  public:
    explicit OptionsForm(const platform::Machine& machine)
        : Form(machine.forms, "frmMain", "", {}) {
        SetLayout(toolkit::Column({
            AddSystemPage(*this, machine),
            AddTweaksPage(*this, machine),
            AddPathsPage(*this, machine),
            AddSecurityPage(*this, machine),
            AddNetworkPage(*this, machine),
        }));
    }
};

}  // namespace tweaks
