#include "platform/win32/windows/tabstripwindow.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/text.h"
#include "platform/win32/windows/paintunder.h"

namespace platform::win32 {
namespace {

constexpr wchar_t PageClass[] = L"QuillmorePage";

// The resource that holds a picture for each tab side by side, in the order of the tabs. A program
// without it shows tabs without pictures.
constexpr wchar_t PicturesName[] = L"TABS";
constexpr int PictureSize = 16;
constexpr COLORREF NoColour = RGB(255, 0, 255);

// A page passes on to the form what its controls tell and ask it, and what the mouse does over it.
LRESULT CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLORSTATIC:
        case WM_MOUSEMOVE:
        case WM_NEXTDLGCTL:
            return SendMessageW(GetParent(window), message, wParam, lParam);
        case WM_PAINT:
            return PaintUnderFrames(window, wParam, lParam);
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

void RegisterPages() {
    WNDCLASSEXW facts{};
    facts.cbSize = sizeof facts;
    if (GetClassInfoExW(GetModuleHandleW(nullptr), PageClass, &facts)) return;
    facts.lpfnWndProc = PageProcedure;
    facts.hInstance = GetModuleHandleW(nullptr);
    facts.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    facts.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    facts.lpszClassName = PageClass;
    RegisterClassExW(&facts);
}

// True colour, since a list in fewer colours has those of the system and not the pictures'.
HIMAGELIST LoadPictures(int count) {
    const BitmapHandle strip(static_cast<HBITMAP>(LoadImageW(
        GetModuleHandleW(nullptr), PicturesName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!strip) return nullptr;
    const HIMAGELIST pictures =
        ImageList_Create(PictureSize, PictureSize, ILC_COLOR24 | ILC_MASK, count, 0);
    ImageList_AddMasked(pictures, strip.Get(), NoColour);
    return pictures;
}

}  // namespace

HWND TabStripWindow::Page(HWND parent, int page) {
    if (pages_.empty()) {
        RegisterPages();
        for (std::size_t index = 0; index < control_.Captions().size(); ++index) {
            const bool current = static_cast<int>(index) == control_.Tab();
            pages_.push_back(CreateWindowExW(
                WS_EX_CONTROLPARENT, PageClass, nullptr,
                WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | (current ? WS_VISIBLE : 0),
                pageArea_.left, pageArea_.top, pageArea_.right - pageArea_.left,
                pageArea_.bottom - pageArea_.top, parent, nullptr, GetModuleHandleW(nullptr),
                nullptr));
        }
    }
    return pages_.at(static_cast<std::size_t>(page));
}

void TabStripWindow::PlacePages(const toolkit::Rect& strip) {
    pageArea_ = {strip.left, strip.top, strip.Right(), strip.Bottom()};
    Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&pageArea_));
    for (const HWND page : pages_) {
        SetWindowPos(page, nullptr, pageArea_.left, pageArea_.top, pageArea_.right - pageArea_.left,
                     pageArea_.bottom - pageArea_.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

ControlWindow::Recipe TabStripWindow::Describe() const {
    return {WC_TABCONTROLW, 0};
}

void TabStripWindow::Prepare() {
    pictures_.Reset(LoadPictures(static_cast<int>(control_.Captions().size())));
    Send(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_.Get()));
    int index = 0;
    for (const std::string& caption : control_.Captions()) {
        std::wstring text = ToWide(caption);
        TCITEMW item{};
        item.mask = TCIF_TEXT | TCIF_IMAGE;
        item.pszText = text.data();
        item.iImage = index;
        Send(TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
    }
}

void TabStripWindow::ShowValue() {
    const int current = control_.Tab();
    if (Send(TCM_GETCURSEL) != current) Send(TCM_SETCURSEL, static_cast<WPARAM>(current));
    for (std::size_t index = 0; index < pages_.size(); ++index) {
        const bool shown = static_cast<int>(index) == current;
        // A control that nobody sees would go on hearing the keyboard.
        if (!shown && IsChild(pages_[index], GetFocus())) TakeFocus();
        ShowWindow(pages_[index], shown ? SW_SHOWNA : SW_HIDE);
    }
}

void TabStripWindow::Turn(bool forward) {
    if (!control_.Enabled()) return;
    const int count = static_cast<int>(control_.Captions().size());
    const int next = (control_.Tab() + (forward ? 1 : count - 1)) % count;
    const HWND focus = GetFocus();
    const bool wasOnPage =
        std::any_of(pages_.begin(), pages_.end(), [&](HWND page) { return IsChild(page, focus); });
    Guard([&] { control_.SetTab(next); });
    if (!Window() || !wasOnPage) return;
    const HWND page = pages_.at(static_cast<std::size_t>(control_.Tab()));
    HWND first = GetWindow(page, GW_CHILD);
    while (first && !IsTabStop(first)) first = GetWindow(first, GW_HWNDNEXT);
    if (first) FocusLikeDialog(first);
}

void TabStripWindow::Notified(UINT code) {
    if (code == static_cast<UINT>(NM_CLICK)) Guard([this] { control_.Click(); });
    if (code != TCN_SELCHANGE) return;
    Guard([this] { control_.SetTab(static_cast<int>(Send(TCM_GETCURSEL))); });
    if (Window()) ShowValue();
}

}  // namespace platform::win32
