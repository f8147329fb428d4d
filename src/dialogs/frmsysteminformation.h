#pragma once

#include "platform/machine.h"
#include "toolkit/form.h"

namespace dialogs {

// The system information: a report on the machine, made anew each time the dialog is loaded, to be
// read, marked and copied.
class frmSystemInformation final : public toolkit::Form {
  public:
    explicit frmSystemInformation(const platform::Machine& machine);

  protected:
    void OnLoad() override;

  private:
    void Copy();

    platform::Machine machine_;
};

}  // namespace dialogs
