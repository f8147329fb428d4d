#include "platform/simulated/otherwindows.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using Lines = std::vector<std::string>;

namespace {

struct OtherWindowsFixture {
    platform::simulated::Machine machine;
    platform::simulated::OtherWindows& windows = machine.otherWindows;
};

}  // namespace

TEST_CASE_FIXTURE(OtherWindowsFixture, "closing a window closes all below it and nothing else") {
    const auto parent = windows.Open("A");
    const auto child = windows.Open("B", "", parent);
    const auto grandchild = windows.Open("C", "", child);
    const auto other = windows.Open("A");
    windows.Close(parent);
    CHECK_THROWS_AS(windows.At(child), std::out_of_range);
    CHECK_THROWS_AS(windows.At(grandchild), std::out_of_range);
    CHECK(windows.Find("A", nullptr) == other);
}

TEST_CASE_FIXTURE(OtherWindowsFixture,
                  "every call leaves a line, also one on a window that is not there") {
    windows.SetExtendedStyle(7, 0x80000);
    windows.Redraw(7);
    CHECK(windows.ExtendedStyle(7) == 0);
    CHECK(machine.display.Size().width == 1024);
    CHECK(machine.journal.Lines() ==
          Lines{"SetWindowLongA #7 GWL_EXSTYLE 0x80000", "InvalidateRect #7 erase",
                "GetWindowLongA #7 GWL_EXSTYLE -> 0x00", "GetSystemMetrics -> 1024x768"});
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "calls that must fail find nothing and change nothing") {
    const auto parent = windows.Open("Bar");
    const auto child = windows.Open("Child", "", parent);
    machine.faults.FailOn("Bar", 5);
    machine.faults.FailOn("Child", 5);
    CHECK(windows.Find("Bar", nullptr) == 0);
    CHECK(windows.FindChild(parent, "Child") == 0);
    windows.SetExtendedStyle(parent, 0x80000);
    windows.SetLayeredAttributes(parent, 0, 100, 2);
    CHECK(windows.Send(child, 0x1026, 0, 1) == 0);
    windows.SetPosition(child, 0, {1, 2, 3, 4}, 0x80);
    windows.Redraw(child);
    machine.faults.Clear();
    CHECK(windows.ExtendedStyle(parent) == 0);
    CHECK(windows.At(parent).alpha == 255);
    CHECK(windows.At(child).textBackground == 0xFFFFFF);
    CHECK(windows.At(child).place == toolkit::Rect{});
    CHECK(windows.At(child).visible);
    CHECK(windows.At(child).redraws == 0);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "place and size that are to stay do so") {
    const auto window = windows.Open("A");
    windows.SetPosition(window, 0, {1, 2, 3, 4}, 0);
    windows.SetPosition(window, 0, {5, 6, 7, 8}, 0x01);
    CHECK(windows.At(window).place == toolkit::Rect{5, 6, 3, 4});
    windows.SetPosition(window, 0, {9, 9, 7, 8}, 0x02);
    CHECK(windows.At(window).place == toolkit::Rect{5, 6, 7, 8});
}
