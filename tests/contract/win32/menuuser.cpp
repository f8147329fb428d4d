#include "contract/win32/menuuser.h"

#include <utility>

#include "platform/win32/text.h"

namespace contract {
namespace {

// What a menu's window answers with its menu's handle.
constexpr UINT GetMenuHandle = 0x01E1;

// A timer procedure is told of no object, so the one that lives is kept here.
MenuUser* currentMenuUser = nullptr;

std::string CaptionAt(HMENU menu, int place) {
    wchar_t text[256] = {};
    GetMenuStringW(menu, static_cast<UINT>(place), text, 256, MF_BYPOSITION);
    return platform::win32::FromWide(text);
}

bool IsSeparator(HMENU menu, int place) {
    return (GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION) & MF_SEPARATOR) != 0;
}

std::vector<std::string> CaptionsOf(HMENU menu) {
    std::vector<std::string> captions;
    for (int place = 0; place < GetMenuItemCount(menu); ++place) {
        captions.push_back(IsSeparator(menu, place) ? "-" : CaptionAt(menu, place));
    }
    return captions;
}

// How often Down must be pressed, since separators are jumped over; 0 when there is no such item.
int StepsTo(const std::vector<std::string>& captions, const std::string& caption) {
    int steps = 0;
    for (const std::string& each : captions) {
        steps += each != "-";
        if (each == caption) return steps;
    }
    return 0;
}

}  // namespace

MenuUser::MenuUser(std::string caption, std::function<void()> whileOpen)
    : caption_(std::move(caption)),
      whileOpen_(std::move(whileOpen)),
      timer_(SetTimer(nullptr, 0, 20, Look)) {
    currentMenuUser = this;
}

MenuUser::~MenuUser() {
    KillTimer(nullptr, timer_);
    currentMenuUser = nullptr;
}

void CALLBACK MenuUser::Look(HWND, UINT, UINT_PTR, DWORD) {
    const HWND window = FindWindowW(L"#32768", nullptr);
    const bool own = GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
    if (currentMenuUser && currentMenuUser->menus == 0 && own && IsWindowVisible(window))
        currentMenuUser->Use(window);
}

void MenuUser::Use(HWND window) {
    ++menus;
    if (whileOpen_) whileOpen_();
    handle = reinterpret_cast<HMENU>(SendMessageW(window, GetMenuHandle, 0, 0));
    captions = CaptionsOf(handle);
    GetWindowRect(window, &place);
    const int steps = caption_.empty() ? 0 : StepsTo(captions, caption_);
    for (int step = 0; step < steps; ++step) PostMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(window, WM_KEYDOWN, steps ? VK_RETURN : VK_ESCAPE, 0);
}

}  // namespace contract
