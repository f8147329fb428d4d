#pragma once

#include <functional>

#include "platform/machine.h"

namespace dialogs {
class frmPassword;
}
namespace toolkit {
class Form;
}

namespace app {

// The only road from the option controls into the system: the dialogue around the write pass.
// It keeps nothing between presses; every press asks everything and writes everything again.
class Apply {
  public:
    struct Parts {
        std::function<void()> saveProgramOptions;
        std::function<void()> writeRegistry;
    };

    Apply(toolkit::Form& mainForm, dialogs::frmPassword& password, const platform::Machine& machine,
          Parts parts);

    // A statement that fails is passed over in silence. May end the program.
    void Run();

  private:
    bool PasswordConfirmed();
    void OfferRestorePoint();
    void OfferRestart();

    toolkit::Form& mainForm_;
    dialogs::frmPassword& password_;
    platform::Machine machine_;
    Parts parts_;
};

}  // namespace app
