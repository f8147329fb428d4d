#include "platform/win32/windows/formwindow.h"

#include <utility>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

constexpr wchar_t FormClass[] = L"QuillmoreForm";
constexpr int IconResource = 1;

}  // namespace

void FormWindow::RegisterForms() {
    WNDCLASSEXW facts{};
    facts.cbSize = sizeof facts;
    if (GetClassInfoExW(GetModuleHandleW(nullptr), FormClass, &facts)) return;
    facts.lpfnWndProc = Procedure;
    facts.hInstance = GetModuleHandleW(nullptr);
    facts.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    facts.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    facts.lpszClassName = FormClass;
    RegisterClassExW(&facts);
}

DWORD FormWindow::Style() const {
    constexpr DWORD dialog = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    return (form_.isDialog ? dialog : WS_OVERLAPPEDWINDOW) | WS_CLIPCHILDREN;
}

// A dialog over a window that is not to be seen would have no taskbar entry at all.
DWORD FormWindow::ExtendedStyle() const {
    if (!form_.isDialog) return WS_EX_CONTROLPARENT;
    const DWORD entry = IsWindowVisible(owner_) ? 0 : WS_EX_APPWINDOW;
    return WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME | entry;
}

// The taskbar shows the windows that nobody owns.
HWND FormWindow::Owner() const {
    return form_.isDialog || !form_.InTaskbar() ? owner_ : nullptr;
}

void FormWindow::Create(HWND owner) {
    RegisterForms();
    owner_ = owner;
    if (form_.sizeToContent) FitToContent();
    const toolkit::Bounds& place = form_.Place();
    const Screen& screen = surroundings_.screen;
    window_ = CreateWindowExW(ExtendedStyle(), FormClass, ToWide(form_.Caption()).c_str(), Style(),
                              screen.ToPixels(place.left), screen.ToPixels(place.top),
                              screen.ToPixels(place.width), screen.ToPixels(place.height), Owner(),
                              nullptr, GetModuleHandleW(nullptr), this);
    name_.emplace(window_, form_.Name());
    if (!form_.isDialog || ExtendedStyle() & WS_EX_APPWINDOW) SetIcons();
    controls_.Create(form_, window_);
    form_.SetView(this);
}

void FormWindow::FitToContent() {
    const toolkit::Size content = toolkit::Measure(form_.Layout(), surroundings_.screen);
    RECT area{0, 0, content.width, content.height};
    AdjustWindowRectEx(&area, Style(), FALSE, ExtendedStyle());
    form_.SetSize(surroundings_.screen.ToTwips(area.right - area.left),
                  surroundings_.screen.ToTwips(area.bottom - area.top));
}

void FormWindow::SetIcons() {
    const auto icon = [](int widthMetric, int heightMetric) {
        return reinterpret_cast<LPARAM>(
            LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IconResource), IMAGE_ICON,
                       GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric), LR_SHARED));
    };
    SendMessageW(window_, WM_SETICON, ICON_BIG, icon(SM_CXICON, SM_CYICON));
    SendMessageW(window_, WM_SETICON, ICON_SMALL, icon(SM_CXSMICON, SM_CYSMICON));
}

void FormWindow::Destroy() {
    if (!window_) return;
    controls_.Detach();
    form_.SetView(nullptr);
    name_.reset();
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(std::exchange(window_, nullptr));
}

void FormWindow::Block(const std::vector<HWND>& others) {
    for (const HWND other : others) {
        if (!EnableWindow(other, FALSE)) blocked_.push_back(other);
    }
}

void FormWindow::Unblock() {
    for (const HWND other : std::exchange(blocked_, {})) EnableWindow(other, TRUE);
}

bool FormWindow::UsesUp(MSG& message) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    if (message.message == WM_KEYDOWN) {
        bool used = false;
        surroundings_.Guard([&] { used = form_.KeyPressed(static_cast<int>(message.wParam)); });
        if (used || !window_) return true;
        const bool turns = message.wParam == VK_TAB && GetKeyState(VK_CONTROL) < 0;
        if (turns && controls_.TurnPage(GetKeyState(VK_SHIFT) >= 0)) return true;
    }
    return IsDialogMessageW(window_, &message);
}

}  // namespace platform::win32
