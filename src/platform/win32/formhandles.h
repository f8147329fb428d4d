#pragma once

#include <windows.h>

#include "toolkit/form.h"

namespace platform::win32 {

// The host of the forms for services that hand a window to Windows.
class FormHandles : public toolkit::FormHost {
  public:
    // nullptr for a form that is not loaded.
    virtual HWND WindowOf(const toolkit::Form& form) const = 0;

    // The window of the first loaded form that is no dialog, which is the main form; nullptr before
    // it is loaded. It is asked for at each call, since it comes after the machine.
    HWND MainWindow() const {
        for (const toolkit::Form* form : OpenForms()) {
            if (!form->isDialog) return WindowOf(*form);
        }
        return nullptr;
    }
};

}  // namespace platform::win32
