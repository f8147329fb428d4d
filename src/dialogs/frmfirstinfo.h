#pragma once

#include "platform/machine.h"
#include "platform/settings.h"
#include "toolkit/form.h"

namespace dialogs {

// The warning at the first start. Command2 accepts it and stores that; Command1 and the close box
// refuse and leave the setting as it was.
class frmFirstInfo final : public toolkit::Form {
  public:
    explicit frmFirstInfo(const platform::Machine& machine);

  private:
    void Accept();

    platform::Settings settings_;
};

}  // namespace dialogs
