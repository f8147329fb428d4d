#include "tweaks/transparency.h"

#include "platform/display.h"
#include "platform/machine.h"
#include "platform/settings.h"
#include "runtime/number.h"

namespace tweaks {
namespace {

using platform::OtherWindows;

// Not the system's desktop colour, but the number 1, a nearly black red.
constexpr std::uint32_t NearlyBlack = 1;

void SetOpacity(OtherWindows& windows, const char* className, std::uint8_t level) {
    const OtherWindows::Handle window = windows.Find(className, nullptr);
    if (window == 0) return;
    windows.SetExtendedStyle(window, windows.ExtendedStyle(window) | OtherWindows::Layered);
    windows.SetLayeredAttributes(window, 0, level, OtherWindows::UseAlpha);
}

}  // namespace

OtherWindows::Handle FindDesktopListView(const OtherWindows& windows) {
    const OtherWindows::Handle desktop = windows.Find("Progman", "Program Manager");
    if (desktop == 0) return 0;
    const OtherWindows::Handle view = windows.FindChild(desktop, "SHELLDLL_DefView");
    if (view == 0) return 0;
    return windows.FindChild(view, "SysListView32");
}

void SetIconsTransparent(const platform::Machine& machine, std::int16_t on) {
    OtherWindows& windows = machine.otherWindows;
    const OtherWindows::Handle list = FindDesktopListView(windows);
    if (list == 0) return;
    if (on != 0) {
        windows.Send(list, OtherWindows::SetTextBackground, 0, OtherWindows::NoColour);
        // Hiding and showing draws the icons anew; the list comes back as large as the screen.
        windows.SetPosition(list, OtherWindows::Bottom, {}, OtherWindows::HideIt);
        const toolkit::Size screen = machine.display.Size();
        windows.SetPosition(list, 0, {0, 0, screen.width, screen.height}, OtherWindows::ShowIt);
    } else {
        windows.Send(list, OtherWindows::SetTextBackground, 0, NearlyBlack);
        windows.Redraw(list);
    }
}

void IconsChosen(const platform::Machine& machine, int value) {
    platform::Settings(machine.settingsStore)
        .SaveSetting("Desktop", "TransparentIcons", value == 1 ? "1" : "0");
    SetIconsTransparent(machine, static_cast<std::int16_t>(value));
}

void SetTaskbarOpacity(const platform::Machine& machine, std::uint8_t level) {
    platform::Settings(machine.settingsStore)
        .SaveSetting("TaskBar", "Luminance", runtime::ToText(std::int32_t{level}));
    SetOpacity(machine.otherWindows, "Shell_TrayWnd", level);
    SetOpacity(machine.otherWindows, "BaseBar", level);
}

}  // namespace tweaks
