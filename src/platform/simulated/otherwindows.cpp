#include "platform/simulated/otherwindows.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

std::string WindowNumber(OtherWindows::Handle window) {
    return "#" + std::to_string(window);
}

}  // namespace

OtherWindows::Handle OtherWindows::Find(const std::string& className, const char* title) const {
    const Handle found = faults_.Check("FindWindowA", className) ? 0 : Topmost(0, className, title);
    journal_.Note([&] {
        return "FindWindowA " + Quoted(className) + (title ? " " + Quoted(title) : "") + " -> " +
               WindowNumber(found);
    });
    return found;
}

OtherWindows::Handle OtherWindows::FindChild(Handle parent, const std::string& className) const {
    // The desktop has children too, but a window that is none has not.
    const bool fails = faults_.Check("FindWindowExA", className) || parent == 0;
    const Handle found = fails ? 0 : Topmost(parent, className, nullptr);
    journal_.Note([&] {
        return "FindWindowExA " + WindowNumber(parent) + " " + Quoted(className) + " -> " +
               WindowNumber(found);
    });
    return found;
}

std::uint32_t OtherWindows::ExtendedStyle(Handle window) const {
    const Window* asked = Fault("GetWindowLongA", window) ? nullptr : Existing(window);
    const std::uint32_t style = asked ? asked->extendedStyle : 0;
    journal_.Note(
        [&] { return "GetWindowLongA " + WindowNumber(window) + " GWL_EXSTYLE -> " + Hex(style); });
    return style;
}

void OtherWindows::SetExtendedStyle(Handle window, std::uint32_t style) {
    journal_.Note(
        [&] { return "SetWindowLongA " + WindowNumber(window) + " GWL_EXSTYLE " + Hex(style); });
    if (Fault("SetWindowLongA", window)) return;
    if (Window* changed = Existing(window)) changed->extendedStyle = style;
}

void OtherWindows::SetLayeredAttributes(Handle window, std::uint32_t colourKey, std::uint8_t alpha,
                                        std::uint32_t flags) {
    journal_.Note([&] {
        return "SetLayeredWindowAttributes " + WindowNumber(window) + " key " + Hex(colourKey) +
               " alpha " + std::to_string(alpha) + " flags " + Hex(flags);
    });
    if (Fault("SetLayeredWindowAttributes", window)) return;
    Window* changed = Existing(window);
    if (changed && (changed->extendedStyle & Layered) && (flags & UseAlpha)) changed->alpha = alpha;
}

std::int32_t OtherWindows::Send(Handle window, std::uint32_t message, std::uint32_t wParam,
                                std::uint32_t lParam) {
    journal_.Note([&] {
        return "SendMessageA " + WindowNumber(window) + " " + Hex(message) + " " + Hex(wParam) +
               " " + Hex(lParam);
    });
    if (Fault("SendMessageA", window)) return 0;
    Window* receiver = Existing(window);
    if (!receiver || message != SetTextBackground) return 0;
    receiver->textBackground = lParam;
    return 1;
}

void OtherWindows::SetPosition(Handle window, Handle after, const toolkit::Rect& place,
                               std::uint32_t flags) {
    journal_.Note([&] {
        return "SetWindowPos " + WindowNumber(window) + " after " + std::to_string(after) + " at " +
               std::to_string(place.left) + "," + std::to_string(place.top) + " size " +
               std::to_string(place.width) + "x" + std::to_string(place.height) + " flags " +
               Hex(flags);
    });
    if (Fault("SetWindowPos", window)) return;
    Window* moved = Existing(window);
    if (!moved) return;
    if (!(flags & KeepPlace)) {
        moved->place.left = place.left;
        moved->place.top = place.top;
    }
    if (!(flags & KeepSize)) {
        moved->place.width = place.width;
        moved->place.height = place.height;
    }
    if (flags & HideIt) moved->visible = false;
    if (flags & ShowIt) moved->visible = true;
}

void OtherWindows::Redraw(Handle window) {
    journal_.Note([&] { return "InvalidateRect " + WindowNumber(window) + " erase"; });
    if (Fault("InvalidateRect", window)) return;
    if (Window* drawn = Existing(window)) ++drawn->redraws;
}

OtherWindows::Handle OtherWindows::Open(const std::string& className, const std::string& title,
                                        Handle parent) {
    windows_[next_] = {.className = className, .title = title, .parent = parent};
    return next_++;
}

void OtherWindows::Close(Handle window) {
    windows_.erase(window);
    // A child has always been opened after its parent, so one walk finds all that lies below.
    std::erase_if(windows_, [&](const auto& entry) {
        const Handle parent = entry.second.parent;
        return parent != 0 && !windows_.contains(parent);
    });
}

const OtherWindows::Window* OtherWindows::Existing(Handle window) const {
    const auto found = windows_.find(window);
    return found == windows_.end() ? nullptr : &found->second;
}

OtherWindows::Window* OtherWindows::Existing(Handle window) {
    return const_cast<Window*>(std::as_const(*this).Existing(window));
}

// A window that was opened later lies above its brothers.
OtherWindows::Handle OtherWindows::Topmost(Handle parent, const std::string& className,
                                           const char* title) const {
    const auto topmost = std::find_if(windows_.rbegin(), windows_.rend(), [&](const auto& entry) {
        const Window& window = entry.second;
        return window.parent == parent &&
               runtime::EqualsIgnoringCase(window.className, className) &&
               (!title || runtime::EqualsIgnoringCase(window.title, title));
    });
    return topmost == windows_.rend() ? 0 : topmost->first;
}

std::optional<int> OtherWindows::Fault(std::string_view call, Handle window) const {
    const Window* subject = Existing(window);
    return faults_.Check(call, subject ? subject->className : "");
}

}  // namespace platform::simulated
