#pragma once

#include <functional>

#include "platform/win32/handle.h"

namespace platform::win32 {

// A window that is never shown and only receives messages. It is a top-level one, because the
// shell's broadcasts reach no other.
class HiddenWindow {
  public:
    using Receiver = std::function<void(UINT message, WPARAM wParam, LPARAM lParam)>;

    // `receive` gets every message and lets no exception out. The window is made at the first Get.
    explicit HiddenWindow(Receiver receive) : receive_(std::move(receive)) {}
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;

    HWND Get();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Receiver receive_;
    WindowHandle window_;
};

}  // namespace platform::win32
