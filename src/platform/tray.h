#pragma once

#include <functional>
#include <string_view>

namespace platform {

// The program's icon in the notification area. What is wanted is kept apart from what is shown:
// when the shell starts anew, an icon that was shown comes back by itself.
class Tray {
  public:
    static constexpr int LeftButton = 1;
    static constexpr int RightButton = 2;

    virtual ~Tray() = default;

    // Takes the main window's icon.
    virtual void SetIcon() = 0;
    virtual void SetTip(std::string_view text) = 0;
    virtual void SetShown(bool shown) = 0;

    // A mouse button was released on the icon. Not its press: a menu that opens while the button
    // is down would take the release for a choice.
    std::function<void(int)> onMouseUp;
    // The user wants the window back (left double click).
    std::function<void()> onRestore;
};

}  // namespace platform
