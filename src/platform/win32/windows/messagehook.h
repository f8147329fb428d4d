#pragma once

#include <windows.h>

#include <functional>

namespace platform::win32 {

// A message on its way to a window whose class is not the program's own.
struct HookedMessage {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    // The class' own procedure.
    WNDPROC behind;

    // Lets the class have the message, as it now is.
    LRESULT Pass() const { return CallWindowProcW(behind, window, message, wParam, lParam); }
};

// Stands before one window and gets all its messages first.
class MessageHook {
  public:
    // Passes the message on or not, and gives its result. It may end the window and the hook.
    using Handler = std::function<LRESULT(HookedMessage&)>;

    MessageHook() = default;
    ~MessageHook() { Leave(); }
    MessageHook(const MessageHook&) = delete;
    MessageHook& operator=(const MessageHook&) = delete;

    // `window` must have no other use for its user data. A hook that watches already keeps its
    // window and its handler.
    void Watch(HWND window, Handler handler);
    // Must come before the window goes.
    void Leave();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    Handler handler_;
    WNDPROC behind_ = nullptr;
};

}  // namespace platform::win32
