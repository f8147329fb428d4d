#include "platform/win32/windows/drawnwindow.h"

#include <iterator>

#include "platform/win32/text.h"
#include "platform/win32/windows/buffer.h"
#include "platform/win32/windows/canvas.h"
#include "platform/win32/windows/nativepicture.h"
#include "toolkit/form.h"

namespace platform::win32 {
namespace {

using toolkit::MouseButton;

void RegisterDrawn(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSEXW facts{};
    facts.cbSize = sizeof facts;
    if (GetClassInfoExW(GetModuleHandleW(nullptr), name, &facts)) return;
    facts.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    facts.lpfnWndProc = procedure;
    facts.hInstance = GetModuleHandleW(nullptr);
    facts.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    facts.lpszClassName = name;
    RegisterClassExW(&facts);
}

MouseButton Held(WPARAM keys) {
    if (keys & MK_LBUTTON) return MouseButton::Left;
    if (keys & MK_RBUTTON) return MouseButton::Right;
    return keys & MK_MBUTTON ? MouseButton::Middle : MouseButton::None;
}

int HeldKeys() {
    const auto held = [](int key, int value) { return GetKeyState(key) < 0 ? value : 0; };
    return held(VK_SHIFT, toolkit::ShiftKey) | held(VK_CONTROL, toolkit::ControlKey) |
           held(VK_MENU, toolkit::AltKey);
}

// The system's pointers by the pointer codes, which begin at 1.
constexpr WORD PointerIds[] = {32512, 32515, 32513, 32512, 32646, 32643, 32645, 32642,
                               32644, 32516, 32514, 32648, 32650, 32651, 32646};
constexpr WORD HandId = 32649;

HCURSOR NativePointer(const toolkit::Pointer& pointer) {
    if (pointer.code == toolkit::Pointer::Own) {
        // A bitmap is no pointer, whoever made it.
        const bool isIcon =
            pointer.picture && pointer.picture->What() == toolkit::Picture::Kind::Icon;
        return isIcon ? static_cast<const NativePicture*>(pointer.picture)->Icon() : nullptr;
    }
    WORD id = HandId;
    if (pointer.code != toolkit::Pointer::Hand) {
        const auto index = static_cast<std::size_t>(pointer.code - 1);
        if (index >= std::size(PointerIds)) return nullptr;
        id = PointerIds[index];
    }
    return LoadCursorW(nullptr, MAKEINTRESOURCEW(id));
}

}  // namespace

DrawnWindow::DrawnWindow(toolkit::DrawnControl& control, const Surroundings& surroundings)
    : ControlWindow(control, surroundings),
      control_(control),
      windowClass_(ToWide(control.WindowClass())) {
    RegisterDrawn(windowClass_.c_str(), Procedure);
}

void DrawnWindow::Detach() {
    if (Window()) SetWindowLongPtrW(Window(), GWLP_USERDATA, 0);
    ControlWindow::Detach();
}

void DrawnWindow::Refresh(toolkit::Aspect what) {
    ControlWindow::Refresh(what);
    Repaint();
}

LRESULT CALLBACK DrawnWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* facts = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(facts->lpCreateParams));
    }
    auto* drawn = reinterpret_cast<DrawnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!drawn || !drawn->Window()) return DefWindowProcW(window, message, wParam, lParam);
    const std::shared_ptr<ControlWindow> alive = drawn->shared_from_this();
    return drawn->Handle(message, wParam, lParam);
}

LRESULT DrawnWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = Window();
    if (HandleMouse(message, wParam, lParam)) return 0;
    switch (message) {
        case WM_SIZE:
            Guard([&] { control_.Resize(Client()); });
            return 0;
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
            Guard([&] { control_.SettingsChanged(); });
            return 0;
        case WM_SETCURSOR:
            PointerCame();
            if (SetPointer()) return TRUE;
            return DefWindowProcW(window, message, wParam, lParam);
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT:
            if (control_.IsReady()) PaintOn(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_ENABLE:
            Repaint();
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            FocusMoved(message == WM_SETFOCUS);
            return 0;
        case WM_KEYDOWN:
            Guard([&] { control_.KeyDown({static_cast<int>(wParam), HeldKeys()}); });
            return 0;
        case WM_CHAR:
            Guard([&] { control_.KeyPress(static_cast<char16_t>(wParam)); });
            return 0;
        case WM_KEYUP:
            Guard([&] { control_.KeyUp({static_cast<int>(wParam), HeldKeys()}); });
            return 0;
        case WM_GETDLGCODE:
            return control_.IsTabStop() ? DLGC_BUTTON | DLGC_WANTARROWS : DLGC_STATIC;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(Font());
        case WM_SETTEXT: {
            const LRESULT result = DefWindowProcW(window, message, wParam, lParam);
            TakeText();
            return result;
        }
        case BM_CLICK:
            Click();
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

bool DrawnWindow::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    using Event = void (toolkit::DrawnControl::*)(toolkit::Mouse);
    struct Row {
        UINT message;
        MouseButton button;
        Event event;
    };
    static constexpr Event down = &toolkit::DrawnControl::MouseDown;
    static constexpr Event up = &toolkit::DrawnControl::MouseUp;
    static constexpr Event twice = &toolkit::DrawnControl::DoubleClick;
    static constexpr Row rows[] = {
        {WM_MOUSEMOVE, MouseButton::None, &toolkit::DrawnControl::MouseMove},
        {WM_LBUTTONDOWN, MouseButton::Left, down},
        {WM_LBUTTONUP, MouseButton::Left, up},
        {WM_LBUTTONDBLCLK, MouseButton::Left, twice},
        {WM_RBUTTONDOWN, MouseButton::Right, down},
        {WM_RBUTTONUP, MouseButton::Right, up},
        {WM_RBUTTONDBLCLK, MouseButton::Right, twice},
        {WM_MBUTTONDOWN, MouseButton::Middle, down},
        {WM_MBUTTONUP, MouseButton::Middle, up},
        {WM_MBUTTONDBLCLK, MouseButton::Middle, twice},
    };
    for (const Row& row : rows) {
        if (row.message != message) continue;
        if (row.event == down && control_.IsTabStop()) SetFocus(Window());
        // As long as a button is held its release must reach the control.
        const bool lastUp = row.event == up && Held(wParam) == MouseButton::None;
        if (lastUp && GetCapture() == Window()) ReleaseCapture();
        const MouseButton button = message == WM_MOUSEMOVE ? Held(wParam) : row.button;
        const toolkit::Point at{static_cast<short>(LOWORD(lParam)),
                                static_cast<short>(HIWORD(lParam))};
        Guard([&] { (control_.*row.event)({button, at, HeldKeys()}); });
        return true;
    }
    return false;
}

// While the hourglass covers its form, it counts for all that is on it.
bool DrawnWindow::SetPointer() const {
    if (control_.Owner().ShownPointer() == toolkit::Hourglass) return false;
    const HCURSOR pointer = NativePointer(control_.MousePicture());
    if (pointer) SetCursor(pointer);
    return pointer != nullptr;
}

toolkit::Rect DrawnWindow::Client() const {
    RECT client{};
    GetClientRect(Window(), &client);
    return {0, 0, client.right, client.bottom};
}

// The system owns a region once it is set, and deletes the one before.
void DrawnWindow::SetRegion(const toolkit::Region& parts) {
    RegionHandle whole;
    for (const auto& [area, isEllipse] : parts) {
        RegionHandle part((isEllipse ? CreateEllipticRgn : CreateRectRgn)(
            area.left, area.top, area.Right(), area.Bottom()));
        if (whole) {
            CombineRgn(whole.Get(), whole.Get(), part.Get(), RGN_OR);
        } else {
            whole = std::move(part);
        }
    }
    SetWindowRgn(Window(), whole.Release(), TRUE);
}

// The parent itself paints the copy: on the screen it leaves out what its children cover.
void DrawnWindow::KeepBackground(bool kept) {
    background_.reset();
    const toolkit::Rect client = Client();
    if (!kept || client.width <= 0 || client.height <= 0) return;
    const HWND parent = GetParent(Window());
    const HDC dc = GetDC(parent);
    background_ = std::make_unique<Buffer>(dc, client.width, client.height);
    ReleaseDC(parent, dc);
    POINT corner{};
    MapWindowPoints(Window(), parent, &corner, 1);
    const auto wParam = reinterpret_cast<WPARAM>(background_->Get());
    SetViewportOrgEx(background_->Get(), -corner.x, -corner.y, nullptr);
    SendMessageW(parent, WM_ERASEBKGND, wParam, 0);
    SendMessageW(parent, WM_PRINTCLIENT, wParam, PRF_CLIENT);
    SetViewportOrgEx(background_->Get(), 0, 0, nullptr);
}

void DrawnWindow::Paint() {
    PAINTSTRUCT facts;
    BeginPaint(Window(), &facts);
    const toolkit::Rect client = Client();
    if (control_.IsReady() && client.width > 0 && client.height > 0) {
        const Buffer buffer(facts.hdc, client.width, client.height);
        PaintOn(buffer.Get());
        BitBlt(facts.hdc, 0, 0, client.width, client.height, buffer.Get(), 0, 0, SRCCOPY);
    }
    EndPaint(Window(), &facts);
}

void DrawnWindow::PaintOn(HDC dc) {
    RECT client;
    GetClientRect(Window(), &client);
    ::FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    const HGDIOBJ before = SelectObject(dc, Font());
    {
        GdiCanvas canvas(dc, background_ ? background_->Get() : nullptr);
        Guard([&] { control_.Paint(canvas, {0, 0, client.right, client.bottom}); });
    }
    SelectObject(dc, before);
}

// As long as a button has the focus it is the one that Return presses.
void DrawnWindow::FocusMoved(bool here) {
    Guard([&] {
        toolkit::DrawnControl* usual = control_.Owner().defaultButton;
        if (usual && usual != &control_) usual->MarkDefault(!here);
        control_.MarkDefault(here || usual == &control_);
        control_.FocusChanged(here);
    });
}

void DrawnWindow::TakeText() {
    Guard([this] { control_.SetCaption(TextOf(Window())); });
}

void DrawnWindow::Click() {
    if (!control_.Enabled()) return;
    if (TakesFocus()) SetFocus(Window());
    Guard([this] { control_.Press(); });
}

}  // namespace platform::win32
