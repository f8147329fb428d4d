#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/otherwindows.h"

namespace platform::simulated {

class Faults;
class Journal;

// The windows of a shell that runs only as far as a test has made it. A fresh machine has none.
class OtherWindows final : public platform::OtherWindows {
  public:
    OtherWindows(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    Handle Find(const std::string& className, const char* title) const override;
    Handle FindChild(Handle parent, const std::string& className) const override;
    std::uint32_t ExtendedStyle(Handle window) const override;
    void SetExtendedStyle(Handle window, std::uint32_t style) override;
    void SetLayeredAttributes(Handle window, std::uint32_t colourKey, std::uint8_t alpha,
                              std::uint32_t flags) override;
    // Keeps the colour of a message that sets a list's text background; any other is only noted.
    std::int32_t Send(Handle window, std::uint32_t message, std::uint32_t wParam,
                      std::uint32_t lParam) override;
    void SetPosition(Handle window, Handle after, const toolkit::Rect& place,
                     std::uint32_t flags) override;
    void Redraw(Handle window) override;

    struct Window {
        std::string className;
        std::string title;
        Handle parent = 0;
        std::uint32_t extendedStyle = 0;
        // Opaque until somebody has set it.
        int alpha = 255;
        std::uint32_t textBackground = 0xFFFFFF;
        toolkit::Rect place = {};
        bool visible = true;
        int redraws = 0;
    };

    // Opens a window above its brothers; `parent` 0 means the desktop.
    Handle Open(const std::string& className, const std::string& title = "", Handle parent = 0);
    // With all windows below it.
    void Close(Handle window);
    // A mistake in the test when there is no such window (std::out_of_range).
    const Window& At(Handle window) const { return windows_.at(window); }
    const std::map<Handle, Window>& All() const { return windows_; }

  private:
    const Window* Existing(Handle window) const;
    Window* Existing(Handle window);
    Handle Topmost(Handle parent, const std::string& className, const char* title) const;
    std::optional<int> Fault(std::string_view call, Handle window) const;

    Journal& journal_;
    Faults& faults_;
    // In the order of their opening.
    std::map<Handle, Window> windows_;
    Handle next_ = 1;
};

}  // namespace platform::simulated
