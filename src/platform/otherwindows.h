#pragma once

#include <cstdint>
#include <string>

#include "toolkit/geometry.h"

namespace platform {

// Windows that belong to other programs, such as the shell's. A window may go at any moment, so a
// call on one that is none does nothing. What the calls tell of their success is not passed on,
// as nobody asks for it.
class OtherWindows {
  public:
    // 0 is no window.
    using Handle = std::uintptr_t;

    // Of the extended style.
    static constexpr std::uint32_t Layered = 0x80000;
    // Of SetLayeredAttributes.
    static constexpr std::uint32_t UseAlpha = 2;
    // A message to a list view, and the colour that is none.
    static constexpr std::uint32_t SetTextBackground = 0x1026;
    static constexpr std::uint32_t NoColour = 0xFFFFFFFF;
    // Of SetPosition.
    static constexpr Handle Bottom = 1;
    static constexpr std::uint32_t KeepSize = 0x01;
    static constexpr std::uint32_t KeepPlace = 0x02;
    static constexpr std::uint32_t ShowIt = 0x40;
    static constexpr std::uint32_t HideIt = 0x80;

    virtual ~OtherWindows() = default;

    // FindWindowA: the topmost window of that class, visible or not, and of that title unless it
    // is nullptr. Letters' case plays no part. 0 when there is none.
    virtual Handle Find(const std::string& className, const char* title) const = 0;

    // FindWindowExA: the topmost direct child of that class, whatever its title. 0 when there is
    // none, and when `parent` is no window.
    virtual Handle FindChild(Handle parent, const std::string& className) const = 0;

    // GetWindowLongA and SetWindowLongA, index GWL_EXSTYLE. 0 for a window that is none.
    virtual std::uint32_t ExtendedStyle(Handle window) const = 0;
    virtual void SetExtendedStyle(Handle window, std::uint32_t style) = 0;

    // SetLayeredWindowAttributes. A window without the layered style stays as it is.
    virtual void SetLayeredAttributes(Handle window, std::uint32_t colourKey, std::uint8_t alpha,
                                      std::uint32_t flags) = 0;

    // SendMessageA: returns when the window has handled the message.
    virtual std::int32_t Send(Handle window, std::uint32_t message, std::uint32_t wParam,
                              std::uint32_t lParam) = 0;

    // SetWindowPos. `after` is a window, or Bottom, or 0 for the top; the place is in pixels of the
    // parent.
    virtual void SetPosition(Handle window, Handle after, const toolkit::Rect& place,
                             std::uint32_t flags) = 0;

    // InvalidateRect of the whole window with erasing, then UpdateWindow.
    virtual void Redraw(Handle window) = 0;
};

}  // namespace platform
