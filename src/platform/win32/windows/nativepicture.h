#pragma once

#include <windows.h>

#include "toolkit/picture.h"

namespace platform::win32 {

// An icon, a mouse pointer or a bitmap of the system, which must live as long as the picture.
class NativePicture final : public toolkit::Picture {
  public:
    NativePicture(HICON icon, toolkit::Size size) : Picture(Kind::Icon, size), handle_(icon) {}
    NativePicture(HBITMAP bitmap, toolkit::Size size)
        : Picture(Kind::Bitmap, size), handle_(bitmap) {}

    HICON Icon() const { return static_cast<HICON>(handle_); }
    HBITMAP Bitmap() const { return static_cast<HBITMAP>(handle_); }

  private:
    HANDLE handle_;
};

}  // namespace platform::win32
