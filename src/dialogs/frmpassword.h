#pragma once

#include "platform/machine.h"
#include "toolkit/form.h"

namespace dialogs {

// Asks for the Auto-Login password once more. OK and Cancel only hide the dialog, so that the
// caller can read txtPasswort afterwards: what was typed after OK, nothing after Cancel. The close
// box unloads the dialog and empties txtPasswort too, so it counts as Cancel.
class frmPassword final : public toolkit::Form {
  public:
    explicit frmPassword(const platform::Machine& machine);

  protected:
    void OnUnload() override;
};

}  // namespace dialogs
