#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace endtoend {

// The tabs of another process's tab control. Its messages fill in structures, which must lie in
// that process's memory.
class Tabs {
  public:
    explicit Tabs(HWND window) : window_(window) {}

    std::vector<std::string> Captions() const;
    // Of one tab, in the coordinates of the control.
    RECT Area(int tab) const;
    // The number of the tab's picture, or -1 when the control has no pictures.
    int Picture(int tab) const;

  private:
    HWND window_;
};

}  // namespace endtoend
