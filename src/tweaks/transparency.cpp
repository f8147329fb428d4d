#include "tweaks/transparency.h"

#include "platform/display.h"
#include "platform/machine.h"
#include "platform/settings.h"
#include "runtime/number.h"

namespace tweaks {
namespace {

using platform::OtherWindows;

// The platform's numbers, from its documentation.
constexpr std::uint32_t WS_EX_LAYERED = 0x80000;
constexpr std::uint32_t LWA_ALPHA = 2;
constexpr std::uint32_t LVM_SETTEXTBKCOLOR = 0x1026;
constexpr std::uint32_t CLR_NONE = 0xFFFFFFFF;
constexpr OtherWindows::Handle HWND_BOTTOM = 1;
constexpr std::uint32_t SWP_HIDEWINDOW = 0x80;
constexpr std::uint32_t SWP_SHOWWINDOW = 0x40;

// Not the system's desktop colour, but the number 1, a nearly black red.
constexpr std::uint32_t NearlyBlack = 1;

void SetOpacity(OtherWindows& windows, const char* className, std::uint8_t level) {
    const OtherWindows::Handle window = windows.Find(className, nullptr);
    if (window == 0) return;
    windows.SetExtendedStyle(window, windows.ExtendedStyle(window) | WS_EX_LAYERED);
    windows.SetLayeredAttributes(window, 0, level, LWA_ALPHA);
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
        windows.Send(list, LVM_SETTEXTBKCOLOR, 0, CLR_NONE);
        // Hiding and showing draws the icons anew; the list comes back as large as the screen.
        windows.SetPosition(list, HWND_BOTTOM, {}, SWP_HIDEWINDOW);
        const toolkit::Size screen = machine.display.Size();
        windows.SetPosition(list, 0, {0, 0, screen.width, screen.height}, SWP_SHOWWINDOW);
    } else {
        windows.Send(list, LVM_SETTEXTBKCOLOR, 0, NearlyBlack);
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
