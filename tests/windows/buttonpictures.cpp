// What the looks leave on the screen and in the system's tables.
#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/win32/windows/nativepicture.h"
#include "windows/desk.h"
#include "windows/resources.h"
#include "windows/stillclock.h"

using namespace windows;
using platform::win32::NativePicture;

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

// A red bitmap with a blue left half.
platform::win32::BitmapHandle TwoColours() {
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    platform::win32::BitmapHandle bitmap(CreateCompatibleBitmap(screen, 8, 8));
    const HGDIOBJ before = SelectObject(dc, bitmap.Get());
    const platform::win32::BrushHandle red(CreateSolidBrush(Red));
    const platform::win32::BrushHandle blue(CreateSolidBrush(Blue));
    const RECT all{0, 0, 8, 8};
    const RECT left{0, 0, 4, 8};
    FillRect(dc, &all, red.Get());
    FillRect(dc, &left, blue.Get());
    SelectObject(dc, before);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

struct ShownButton {
    Desk desk;
    StillClock clock;
    TestForm form{desk.host, "frmButton"};
    controls::chameleonButton& button =
        form.Add<controls::chameleonButton>("cmd", controls::Persisted{"TX="}, clock);
    platform::win32::BitmapHandle bitmap = TwoColours();
    HWND window = nullptr;

    ShownButton() {
        form.SetLayout(toolkit::Margin(
            toolkit::Row({toolkit::AtMost(Leaf(button), 75, 23), toolkit::Filler()}), 20));
        form.Show();
        window = desk.Find(form, "cmd");
        ServeQueue();
    }
    ~ShownButton() { form.Unload(); }

    void SetBitmap() {
        button.SetPictureNormal(std::make_shared<NativePicture>(bitmap.Get(), toolkit::Size{8, 8}));
    }

    // One pixel of what the window paints when it is asked to.
    COLORREF At(int x, int y) const {
        const HDC screen = GetDC(nullptr);
        const HDC dc = CreateCompatibleDC(screen);
        const platform::win32::BitmapHandle copy(CreateCompatibleBitmap(screen, 100, 50));
        const HGDIOBJ before = SelectObject(dc, copy.Get());
        SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
        const COLORREF colour = GetPixel(dc, x, y);
        SelectObject(dc, before);
        DeleteDC(dc);
        ReleaseDC(nullptr, screen);
        return colour;
    }
};

}  // namespace

TEST_CASE_FIXTURE(ShownButton, "a bitmap is drawn in the middle, with all its pixels") {
    button.SetUseMaskColor(false);
    SetBitmap();
    RECT client{};
    GetClientRect(window, &client);
    CHECK(At(client.right / 2 - 2, client.bottom / 2) == Blue);
    CHECK(At(client.right / 2 + 2, client.bottom / 2) == Red);
    CHECK(At(client.right / 2 + 8, client.bottom / 2) == GetSysColor(COLOR_BTNFACE));
}

TEST_CASE_FIXTURE(ShownButton, "a bitmap's pixels in the mask colour show the face") {
    button.SetMaskColor(Blue);
    SetBitmap();
    RECT client{};
    GetClientRect(window, &client);
    CHECK(At(client.right / 2 - 2, client.bottom / 2) == GetSysColor(COLOR_BTNFACE));
    CHECK(At(client.right / 2 + 2, client.bottom / 2) == Red);
}

TEST_CASE_FIXTURE(ShownButton, "a grey bitmap has no colour left") {
    button.SetNormalGrey(true);
    SetBitmap();
    RECT client{};
    GetClientRect(window, &client);
    const COLORREF colour = At(client.right / 2 + 2, client.bottom / 2);
    CHECK(colour == RGB(0x4C, 0x4C, 0x4C));
}

TEST_CASE_FIXTURE(ShownButton, "an icon is drawn over the face") {
    button.SetPictureNormal(
        std::make_shared<NativePicture>(LoadIconW(nullptr, IDI_ERROR), toolkit::Size{16, 16}));
    RECT client{};
    GetClientRect(window, &client);
    CHECK(At(client.right / 2 - 5, client.bottom / 2) != GetSysColor(COLOR_BTNFACE));
    CHECK(At(client.right / 2 - 12, client.bottom / 2) == GetSysColor(COLOR_BTNFACE));
}

TEST_CASE_FIXTURE(ShownButton, "a transparent button shows what its parent shows behind it") {
    button.SetButtonType(11);
    CHECK(At(20, 10) == GetSysColor(COLOR_BTNFACE));
    // The parent's own colour, not the button's.
    button.SetBackColor(Red);
    CHECK(At(20, 10) == GetSysColor(COLOR_BTNFACE));
    button.SetButtonType(5);
    CHECK(At(20, 10) == Red);
}

TEST_CASE_FIXTURE(ShownButton, "the last of three dots is drawn whole in a button of 26 pixels") {
    SetWindowPos(window, nullptr, 0, 0, 26, 23, SWP_NOMOVE | SWP_NOZORDER);
    button.SetCaption("...");
    const auto isDark = [&](int x) {
        for (int y = 4; y < 19; ++y) {
            if (At(x, y) == GetSysColor(COLOR_BTNTEXT)) return true;
        }
        return false;
    };
    int dots = 0;
    for (int x = 4; x < 22; ++x) dots += isDark(x) && !isDark(x - 1);
    CHECK(dots == 3);
}

TEST_CASE_FIXTURE(ShownButton,
                  "a paint between DisableRefresh and Refresh leaves the old picture") {
    const auto shown = [&] {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const HDC screen = GetDC(window);
        const COLORREF colour = GetPixel(screen, 20, 10);
        ReleaseDC(window, screen);
        return colour;
    };
    button.SetBackColor(Red);
    CHECK(shown() == Red);
    button.DisableRefresh();
    button.SetBackColor(Blue);
    CHECK(shown() == Red);
    button.Refresh();
    CHECK(shown() == Blue);
}

TEST_CASE_FIXTURE(ShownButton, "1,000 paintings of every look leave nothing behind") {
    button.SetCaption("&Knopf");
    button.SetFont({"Tahoma", 9, true});
    SetBitmap();
    button.SetNormalGrey(true);
    button.FocusChanged(true);
    const auto paint = [&](int times) {
        for (std::int16_t look = 1; look <= 14; ++look) {
            for (int i = 0; i < times; ++i) {
                button.SetButtonType(i % 50 == 0 ? std::int16_t{2} : look);
                button.View()->PaintNow();
            }
        }
    };
    paint(100);
    const int objects = DrawingObjects();
    const int handles = Handles();
    const std::size_t memory = PrivateMemory();
    paint(1000);
    CHECK(DrawingObjects() <= objects);
    CHECK(Handles() <= handles);
    // Pages that the heap keeps.
    CHECK(PrivateMemory() <= memory + 128 * 1024);
}
