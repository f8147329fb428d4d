#include "platform/win32/windows/drawnwindow.h"

#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "platform/win32/windows/canvas.h"
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
    return keys & MK_RBUTTON ? MouseButton::Right : MouseButton::None;
}

// A bitmap in memory of the size of a window, which goes onto the screen in one piece.
class Buffer {
  public:
    Buffer(HDC target, int width, int height)
        : dc_(CreateCompatibleDC(target)),
          bitmap_(CreateCompatibleBitmap(target, width, height)),
          before_(SelectObject(dc_, bitmap_.Get())) {}
    ~Buffer() {
        SelectObject(dc_, before_);
        DeleteDC(dc_);
    }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    HDC Get() const { return dc_; }

  private:
    HDC dc_;
    BitmapHandle bitmap_;
    HGDIOBJ before_;
};

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
    if (HandleMouse(message, wParam)) return 0;
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT:
            PaintOn(reinterpret_cast<HDC>(wParam));
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
            Guard([&] { control_.KeyDown(static_cast<int>(wParam)); });
            return 0;
        case WM_KEYUP:
            Guard([&] { control_.KeyUp(static_cast<int>(wParam)); });
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

bool DrawnWindow::HandleMouse(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_MOUSEMOVE:
            Guard([&] { control_.MouseMove(Held(wParam)); });
            return true;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            if (control_.IsTabStop()) SetFocus(Window());
            Guard([&] {
                control_.MouseDown(message == WM_LBUTTONDOWN ? MouseButton::Left
                                                             : MouseButton::Right);
            });
            return true;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
            if (GetCapture() == Window()) ReleaseCapture();
            Guard([&] {
                control_.MouseUp(message == WM_LBUTTONUP ? MouseButton::Left : MouseButton::Right);
            });
            return true;
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
            Guard([&] {
                control_.DoubleClick(message == WM_LBUTTONDBLCLK ? MouseButton::Left
                                                                 : MouseButton::Right);
            });
            return true;
        default:
            return false;
    }
}

void DrawnWindow::Paint() {
    PAINTSTRUCT facts;
    BeginPaint(Window(), &facts);
    RECT client;
    GetClientRect(Window(), &client);
    if (client.right > 0 && client.bottom > 0) {
        const Buffer buffer(facts.hdc, client.right, client.bottom);
        PaintOn(buffer.Get());
        BitBlt(facts.hdc, 0, 0, client.right, client.bottom, buffer.Get(), 0, 0, SRCCOPY);
    }
    EndPaint(Window(), &facts);
}

void DrawnWindow::PaintOn(HDC dc) {
    RECT client;
    GetClientRect(Window(), &client);
    ::FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    const HGDIOBJ before = SelectObject(dc, Font());
    GdiCanvas canvas(dc);
    Guard([&] { control_.Paint(canvas, {0, 0, client.right, client.bottom}); });
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
