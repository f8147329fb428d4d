#include "platform/otherwindows.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace {

constexpr std::uint32_t ToolWindow = 0x80;
constexpr std::uint32_t Layered = 0x80000;
constexpr std::uint32_t UseAlpha = 2;
constexpr std::uint32_t SetTextBackground = 0x1026;
constexpr platform::OtherWindows::Handle Bottom = 1;
constexpr std::uint32_t Show = 0x40;
constexpr std::uint32_t Hide = 0x80;

struct OtherWindowsFixture {
    contract::TestMachine machine;
    platform::OtherWindows& windows = machine.Services().otherWindows;

    platform::OtherWindows::Handle Closed() {
        const auto window = machine.OpenWindow(contract::StandInClass, "closed");
        machine.EndWindow(window);
        return window;
    }
};

}  // namespace

TEST_CASE_FIXTURE(OtherWindowsFixture, "a window is found by its class, and by class and title") {
    const auto window = machine.OpenWindow(contract::StandInClass, "Größe");
    CHECK(windows.Find(contract::StandInClass, nullptr) == window);
    CHECK(windows.Find(contract::StandInClass, "Größe") == window);
    CHECK(windows.Find("QUILLMOREstandin", "größe") == window);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "what is not there is not found") {
    CHECK(windows.Find(contract::StandInClass, nullptr) == 0);
    machine.OpenWindow(contract::StandInClass, "one");
    CHECK(windows.Find(contract::StandInClass, "other") == 0);
    CHECK(windows.Find(contract::StandInClass, "") == 0);
    CHECK(windows.Find("QuillmoreStand", nullptr) == 0);
    Closed();
    CHECK(windows.Find(contract::StandInClass, "closed") == 0);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "of several windows the topmost is found") {
    const auto below = machine.OpenWindow(contract::StandInClass, "below");
    const auto above = machine.OpenWindow(contract::StandInClass, "above");
    CHECK(windows.Find(contract::StandInClass, nullptr) == above);
    CHECK(windows.Find(contract::StandInClass, "below") == below);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "a window that is hidden is found all the same") {
    const auto window = machine.OpenWindow(contract::StandInClass, "");
    windows.SetPosition(window, Bottom, {0, 0, 10, 10}, Hide);
    CHECK(windows.Find(contract::StandInClass, nullptr) == window);
}

TEST_CASE_FIXTURE(OtherWindowsFixture,
                  "children are found below their parent only, whatever their titles") {
    const auto parent = machine.OpenWindow(contract::StandInClass, "parent");
    const auto child = machine.OpenWindow("QuillmoreChild", "child", parent);
    const auto grandchild = machine.OpenWindow("QuillmoreGrandchild", "", child);
    CHECK(windows.FindChild(parent, "QuillmoreChild") == child);
    CHECK(windows.FindChild(parent, "quillmorechild") == child);
    CHECK(windows.FindChild(child, "QuillmoreGrandchild") == grandchild);
    CHECK(windows.FindChild(parent, "QuillmoreGrandchild") == 0);
    CHECK(windows.Find("QuillmoreChild", nullptr) == 0);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "no window and a closed one have no children") {
    machine.OpenWindow(contract::StandInClass, "");
    CHECK(windows.FindChild(0, contract::StandInClass) == 0);
    CHECK(windows.FindChild(Closed(), contract::StandInClass) == 0);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "the extended style is read and set") {
    const auto window = machine.OpenWindow(contract::StandInClass, "");
    const std::uint32_t before = windows.ExtendedStyle(window);
    CHECK((before & (ToolWindow | Layered)) == 0);
    windows.SetExtendedStyle(window, before | ToolWindow);
    CHECK(windows.ExtendedStyle(window) == (before | ToolWindow));
    windows.SetExtendedStyle(window, before | ToolWindow | Layered);
    CHECK(windows.ExtendedStyle(window) == (before | ToolWindow | Layered));
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "a layered window takes the alpha, again and again") {
    const auto window = machine.OpenWindow(contract::StandInClass, "");
    windows.SetExtendedStyle(window, windows.ExtendedStyle(window) | Layered);
    for (int alpha : {55, 100, 255, 0}) {
        windows.SetLayeredAttributes(window, 0, static_cast<std::uint8_t>(alpha), UseAlpha);
        CHECK(machine.LookAt(window).alpha == alpha);
    }
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "a window that is not layered takes no alpha") {
    const auto window = machine.OpenWindow(contract::StandInClass, "");
    const std::uint32_t before = windows.ExtendedStyle(window);
    windows.SetLayeredAttributes(window, 0, 100, UseAlpha);
    CHECK(machine.LookAt(window).alpha == 255);
    CHECK(windows.ExtendedStyle(window) == before);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "a list takes the colour behind its texts by message") {
    const auto list = machine.OpenWindow("SysListView32", "");
    CHECK(windows.Send(list, SetTextBackground, 0, 0xFFFFFFFF) == 1);
    CHECK(machine.LookAt(list).textBackground == 0xFFFFFFFF);
    CHECK(windows.Send(list, SetTextBackground, 0, 1) == 1);
    CHECK(machine.LookAt(list).textBackground == 1);
}

TEST_CASE_FIXTURE(OtherWindowsFixture,
                  "a window is hidden, and shown again at another place and size") {
    const auto parent = machine.OpenWindow(contract::StandInClass, "");
    const auto child = machine.OpenWindow("QuillmoreChild", "", parent);
    windows.SetPosition(child, Bottom, {}, Hide);
    CHECK_FALSE(machine.LookAt(child).visible);
    CHECK(machine.LookAt(child).place == toolkit::Rect{});
    windows.SetPosition(child, 0, {10, 20, 300, 200}, Show);
    CHECK(machine.LookAt(child).visible);
    CHECK(machine.LookAt(child).place == toolkit::Rect{10, 20, 300, 200});
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "a window draws itself anew before the call returns") {
    const auto window = machine.OpenWindow(contract::StandInClass, "");
    windows.SetPosition(window, 0, {0, 0, 100, 100}, Show);
    const int before = machine.LookAt(window).redraws;
    windows.Redraw(window);
    CHECK(machine.LookAt(window).redraws == before + 1);
}

TEST_CASE_FIXTURE(OtherWindowsFixture, "calls on no window or a closed one do nothing") {
    const auto other = machine.OpenWindow(contract::StandInClass, "");
    windows.SetPosition(other, 0, {0, 0, 100, 100}, Show);
    const auto before = machine.LookAt(other);
    for (const auto gone : {platform::OtherWindows::Handle{0}, Closed()}) {
        CHECK(windows.ExtendedStyle(gone) == 0);
        windows.SetExtendedStyle(gone, Layered);
        windows.SetLayeredAttributes(gone, 0, 100, UseAlpha);
        CHECK(windows.Send(gone, SetTextBackground, 0, 1) == 0);
        windows.SetPosition(gone, Bottom, {1, 2, 3, 4}, Hide);
        windows.Redraw(gone);
    }
    CHECK(machine.LookAt(other) == before);
}
