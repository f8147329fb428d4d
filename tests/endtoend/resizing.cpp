// Every page after its window has got another size.
#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "endtoend/pages.h"
#include "endtoend/workplace.h"
#include "support/screenpicture.h"

namespace endtoend {
namespace {

struct MainWindow {
    Workplace workplace;
    OpenProgram program{workplace};
    HWND form = program.Find("frmMain");

    // As soon as it does not change any more, but for the clock, which goes on. All that waits to
    // be drawn is drawn first. What a window has drawn Wine hands to the display 50 milliseconds
    // later, or when the program gets its next turn, which the two answers show that it had.
    std::vector<DWORD> Picture() const {
        RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        const RECT area = support::ClientOnScreen(form);
        std::vector<DWORD> picture;
        Until("a picture that stays", [&] {
            Send(form, WM_NULL);
            Sleep(80);
            Send(form, WM_NULL);
            auto next = support::ScreenPixels(area);
            HideClock(next, area);
            std::swap(picture, next);
            return picture == next;
        });
        return picture;
    }

    std::vector<DWORD> PaintedAnew() const {
        RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        return Picture();
    }

    void HideClock(std::vector<DWORD>& picture, const RECT& area) const {
        if (program.CurrentTab() != UtilitiesPage) return;
        RECT clock = {};
        GetWindowRect(program.Find("lblDateAndTime"), &clock);
        const int width = area.right - area.left;
        for (int y = area.bottom - clock.bottom; y < area.bottom - clock.top; ++y) {
            const auto row = picture.begin() + y * width;
            std::fill(row + clock.left - area.left, row + clock.right - area.left, 0);
        }
    }
};

TEST_CASE_FIXTURE(MainWindow, "no page keeps anything of the size that its window had") {
    SetCursorPos(0, 0);
    for (int page = 0; page <= UtilitiesPage; ++page) {
        CAPTURE(page);
        program.OpenTab(page);
        const auto before = Picture();
        CHECK(std::set(before.begin(), before.end()).size() > 2);
        for (const WPARAM change : {SC_MAXIMIZE, SC_RESTORE}) {
            CAPTURE(change);
            SetCursorPos(0, 0);
            Send(form, WM_SYSCOMMAND, change);
            Until("the other size", [&] { return !IsZoomed(form) == (change == SC_RESTORE); });
            const auto after = Picture();
            CHECK(support::Difference(after, PaintedAnew(), support::ClientOnScreen(form)) == "");
        }
    }
}

}  // namespace
}  // namespace endtoend
