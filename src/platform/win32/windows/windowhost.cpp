#include "platform/win32/windows/windowhost.h"

#include <algorithm>

#include "platform/win32/text.h"
#include "platform/win32/windows/formwindow.h"

namespace platform::win32 {

WindowHost::WindowHost(platform::Messages& messages) : messages_(messages) {}

WindowHost::~WindowHost() {
    for (const auto& window : windows_) window->Destroy();
}

void WindowHost::Open(toolkit::Form& form) {
    if (Find(form)) return;
    windows_.push_back(std::make_shared<FormWindow>(form, Surroundings{screen_, messages_}));
    windows_.back()->Create(OwnerFor(form));
}

// Dialogs lie over the main window.
HWND WindowHost::OwnerFor(const toolkit::Form& form) {
    if (!form.isDialog) return root_.Get();
    for (const auto& window : windows_) {
        if (window->Window() && !window->Form().isDialog) return window->Window();
    }
    return root_.Get();
}

void WindowHost::Close(toolkit::Form& form) {
    const auto window = Find(form);
    if (!window) return;
    windows_.erase(std::find(windows_.begin(), windows_.end(), window));
    window->Destroy();
    PostMessageW(root_.Get(), WM_NULL, 0, 0);
}

void WindowHost::RunModal(toolkit::Form& form) {
    const auto window = Find(form);
    if (!window) return;
    const HWND before = GetActiveWindow() == window->Window()
                            ? GetWindow(window->Window(), GW_OWNER)
                            : GetActiveWindow();
    std::vector<HWND> others;
    for (const auto& other : windows_) {
        if (other != window && other->Window()) others.push_back(other->Window());
    }
    window->Block(others);
    while (window->Window() && window->Form().Visible() && ServeOne()) {
    }
    if (IsWindowVisible(before)) SetActiveWindow(before);
}

void WindowHost::Run() {
    while (!windows_.empty() && ServeOne()) {
    }
}

// One message. False when the program is to end; the loop around must then know it too.
bool WindowHost::ServeOne() {
    MSG message{};
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return false;
    }
    const HWND top = GetAncestor(message.hwnd, GA_ROOT);
    const auto form = std::find_if(windows_.begin(), windows_.end(), [&](const auto& window) {
        return top && window->Window() == top;
    });
    if (form != windows_.end() && (*form)->UsesUp(message)) return true;
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
}

toolkit::Bounds WindowHost::WorkArea() const {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return {screen_.ToTwips(area.left), screen_.ToTwips(area.top),
            screen_.ToTwips(area.right - area.left), screen_.ToTwips(area.bottom - area.top)};
}

std::vector<toolkit::Form*> WindowHost::OpenForms() const {
    std::vector<toolkit::Form*> forms;
    for (const auto& window : windows_) forms.push_back(&window->Form());
    return forms;
}

void WindowHost::DoEvents() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) && ServeOne()) {
    }
}

std::string WindowHost::SortKey(std::string_view text) const {
    const std::wstring wide = ToWide(text);
    const auto map = [&](char* key, int size) {
        return LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, wide.c_str(), -1,
                            reinterpret_cast<wchar_t*>(key), size);
    };
    std::string key(static_cast<std::size_t>(std::max(map(nullptr, 0), 0)), '\0');
    map(key.data(), static_cast<int>(key.size()));
    return key;
}

// The last word has the form that was loaded last, which is the one that the user works with.
void WindowHost::ScreenPointerChanged() {
    for (const auto& window : windows_) window->Refresh(toolkit::FormAspect::Pointer);
}

// Its view, if it has one, is one that this host has made.
std::uintptr_t WindowHost::HandleOf(const toolkit::Control& control) const {
    const auto* window = static_cast<const ControlWindow*>(control.View());
    return window ? reinterpret_cast<std::uintptr_t>(window->Window()) : 0;
}

HWND WindowHost::WindowOf(const toolkit::Form& form) const {
    const auto window = Find(form);
    return window ? window->Window() : nullptr;
}

std::shared_ptr<FormWindow> WindowHost::Find(const toolkit::Form& form) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& window) { return &window->Form() == &form; });
    return found == windows_.end() ? nullptr : *found;
}

}  // namespace platform::win32
