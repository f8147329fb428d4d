#pragma once

#include <windows.h>

#include <string_view>

namespace platform::win32 {

// The window property "ControlName", by which scripts and screen readers find a window: a global
// atom of the name in the ANSI code page. Both go when this object goes, which must be before the
// window does.
class ControlName {
  public:
    ControlName(HWND window, std::string_view name);
    ~ControlName();
    ControlName(const ControlName&) = delete;
    ControlName& operator=(const ControlName&) = delete;

  private:
    HWND window_;
    ATOM atom_;
};

}  // namespace platform::win32
