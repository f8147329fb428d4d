#pragma once

#include <windows.h>

namespace platform::win32 {

// As long as it lives the system asks nobody to put a medium into a drive.
class NoMediumBox {
  public:
    NoMediumBox() { SetErrorMode(before_ | SEM_FAILCRITICALERRORS); }
    ~NoMediumBox() { SetErrorMode(before_); }
    NoMediumBox(const NoMediumBox&) = delete;
    NoMediumBox& operator=(const NoMediumBox&) = delete;

  private:
    // XP tells the mode only to those who set one.
    const UINT before_ = SetErrorMode(SEM_FAILCRITICALERRORS);
};

}  // namespace platform::win32
