#pragma once

#include <windows.h>

#include "endtoend/program.h"

namespace endtoend {

// What the user does with the program's icon in the notification area.
class TrayUser {
  public:
    explicit TrayUser(const Program& program) : program_(program) {}

    // Has the program hide in the tray.
    void Hide() const;

    // What the shell tells when a mouse button does something on the icon. Only the window behind
    // the icon hears this message.
    void Mouse(UINT event) const;

    // Opens the menu and chooses the item: 1 is the first, the separators are not counted.
    void Choose(int item) const;

    // Whether the shell knows the program's icon.
    bool HasIcon() const;
    // By the mouse on the last icon of the taskbar; the suite knows of no other than this one.
    static void DoubleClickIcon();
    // Takes the program's icon away, as it goes with a shell that ends.
    void LoseIcon() const;
    // What a shell says that has started.
    static void TellStart();

    // While it is open.
    HWND Menu() const;

  private:
    // Whether one of the program's windows has it; the others are refused.
    bool NotifyShell(DWORD action) const;

    const Program& program_;
};

}  // namespace endtoend
