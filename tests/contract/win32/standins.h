#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "contract/machine.h"
#include "platform/win32/handle.h"

namespace contract {

// Windows that stand for those of other programs: each draws nothing and counts how often it was
// erased. A class that the system has already, such as a list view, is used as it is.
class StandIns {
  public:
    StandIns() = default;
    ~StandIns();
    StandIns(const StandIns&) = delete;
    StandIns& operator=(const StandIns&) = delete;

    // Opens a visible window above all others of its kind.
    HWND Open(std::string_view className, std::string_view title, HWND parent);
    void Close(HWND window);
    WindowLook LookAt(HWND window) const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    static inline std::map<HWND, int> redraws_;
    std::map<HWND, platform::win32::WindowHandle> windows_;
    // Those that were made here.
    std::vector<std::wstring> classes_;
};

}  // namespace contract
