#pragma once

#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/workstation.h"
#include "toolkit/form.h"

namespace dialogs {

// Who is logged on to this computer, one line a logon, read anew each time the dialog is loaded and
// at each press of cmdRefresh.
class frmShowAllLoggedInUsers final : public toolkit::Form {
  public:
    explicit frmShowAllLoggedInUsers(const platform::Machine& machine);

  protected:
    void OnLoad() override;
    bool OnKeyDown(int virtualKey) override;

  private:
    void FillUserList();
    void ReadLoggedOnUsers(const std::string& ServerName);

    platform::Machine machine_;
    std::vector<platform::LoggedOnUser> users_;
};

}  // namespace dialogs
