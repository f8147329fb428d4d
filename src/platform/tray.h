#pragma once

#include <functional>
#include <string_view>

namespace platform {

// The program's icon in the notification area. What is wanted is kept apart from what is shown:
// when the shell starts anew, an icon that was shown comes back by itself.
class Tray {
  public:
    virtual ~Tray() = default;

    // Takes the main window's icon.
    virtual void SetIcon() = 0;
    virtual void SetTip(std::string_view text) = 0;
    virtual void SetShown(bool shown) = 0;

    // A mouse button went down on the icon: 1 left, 2 right.
    std::function<void(int)> onMouseDown;
    // The user wants the window back (left double click).
    std::function<void()> onRestore;
};

}  // namespace platform
