// The labels of the tools under a mouse that really moves over the screen.
#include <doctest/doctest.h>

#include <algorithm>
#include <functional>

#include "endtoend/pages.h"
#include "endtoend/workplace.h"
#include "support/screenpicture.h"

namespace endtoend {
namespace {

// As the rows of a picture hold it, not as a COLORREF.
constexpr DWORD Red = 0xFF0000;

RECT AreaOf(HWND window) {
    RECT area = {};
    GetWindowRect(window, &area);
    return area;
}

bool ScreenShowsRed(const RECT& area) {
    const auto pixels = support::ScreenPixels(area);
    return std::find(pixels.begin(), pixels.end(), Red) != pixels.end();
}

struct Mouse {
    Workplace workplace;
    OpenProgram program{workplace};

    Mouse() { program.OpenTab(UtilitiesPage); }

    // Onto a point of the control, counted from its upper left corner, and a bit to and fro there
    // until what is awaited has come.
    void MoveTo(const std::string& name, int x, int y, const std::string& what,
                const std::function<bool()>& come) const {
        const HWND window = program.Wait(name);
        const RECT area = AreaOf(window);
        POINT point = {area.left + x, area.top + y};
        REQUIRE(WindowFromPoint(point) == window);
        Until(what, [&] {
            point.x ^= 1;
            SetCursorPos(point.x, point.y);
            return come();
        });
    }

    bool IsRed(const std::string& name) const { return ScreenShowsRed(AreaOf(program.Wait(name))); }
    void ExpectRed(const std::string& name) const {
        MoveTo(name, 4, 4, name + " to be red", [&] { return IsRed(name); });
    }
    void ExpectNoneRed(const std::string& name, int x, int y) const {
        MoveTo(name, x, y, "no label to be red", [&] { return !IsRed("fraPrograms"); });
    }
};

TEST_CASE_FIXTURE(Mouse, "the label under the mouse is red, and it alone") {
    ExpectNoneRed("lblUtilities", 4, 4);
    ExpectRed("lblCMD");
    ExpectRed("lblZertifikatManager");
    CHECK_FALSE(IsRed("lblCMD"));
}

TEST_CASE_FIXTURE(Mouse, "the red ends when the mouse is on what surrounds the labels") {
    const RECT frame = AreaOf(program.Find("fraPrograms"));
    ExpectRed("lblCMD");
    ExpectNoneRed("fraPrograms", frame.right - frame.left - 6, frame.bottom - frame.top - 5);
    ExpectRed("lblCMD");
    ExpectNoneRed("lblUtilities", 4, 4);
}

}  // namespace
}  // namespace endtoend
