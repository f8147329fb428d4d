#include "platform/otherwindows.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace {

constexpr char Class[] = "QuillmoreStandIn";
constexpr std::uint32_t ToolWindow = 0x80;
constexpr std::uint32_t Layered = 0x80000;
constexpr std::uint32_t UseAlpha = 2;
constexpr std::uint32_t SetTextBackground = 0x1026;
constexpr platform::OtherWindows::Handle Bottom = 1;
constexpr std::uint32_t Show = 0x40;
constexpr std::uint32_t Hide = 0x80;

struct Fixture {
    contract::TestMachine machine;
    platform::OtherWindows& windows = machine.Services().windows;

    platform::OtherWindows::Handle Closed() {
        const auto window = machine.OpenWindow(Class, "closed");
        machine.EndWindow(window);
        return window;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a window is found by its class, and by class and title") {
    const auto window = machine.OpenWindow(Class, "Größe");
    CHECK(windows.Find(Class, nullptr) == window);
    CHECK(windows.Find(Class, "Größe") == window);
    CHECK(windows.Find("QUILLMOREstandin", "größe") == window);
}

TEST_CASE_FIXTURE(Fixture, "what is not there is not found") {
    CHECK(windows.Find(Class, nullptr) == 0);
    machine.OpenWindow(Class, "one");
    CHECK(windows.Find(Class, "other") == 0);
    CHECK(windows.Find(Class, "") == 0);
    CHECK(windows.Find("QuillmoreStand", nullptr) == 0);
    Closed();
    CHECK(windows.Find(Class, "closed") == 0);
}

TEST_CASE_FIXTURE(Fixture, "of several windows the topmost is found") {
    const auto below = machine.OpenWindow(Class, "below");
    const auto above = machine.OpenWindow(Class, "above");
    CHECK(windows.Find(Class, nullptr) == above);
    CHECK(windows.Find(Class, "below") == below);
}

TEST_CASE_FIXTURE(Fixture, "a window that is hidden is found all the same") {
    const auto window = machine.OpenWindow(Class, "");
    windows.SetPosition(window, Bottom, {0, 0, 10, 10}, Hide);
    CHECK(windows.Find(Class, nullptr) == window);
}

TEST_CASE_FIXTURE(Fixture, "children are found below their parent only, whatever their titles") {
    const auto parent = machine.OpenWindow(Class, "parent");
    const auto child = machine.OpenWindow("QuillmoreChild", "child", parent);
    const auto grandchild = machine.OpenWindow("QuillmoreGrandchild", "", child);
    CHECK(windows.FindChild(parent, "QuillmoreChild") == child);
    CHECK(windows.FindChild(parent, "quillmorechild") == child);
    CHECK(windows.FindChild(child, "QuillmoreGrandchild") == grandchild);
    CHECK(windows.FindChild(parent, "QuillmoreGrandchild") == 0);
    CHECK(windows.Find("QuillmoreChild", nullptr) == 0);
}

TEST_CASE_FIXTURE(Fixture, "no window and a closed one have no children") {
    machine.OpenWindow(Class, "");
    CHECK(windows.FindChild(0, Class) == 0);
    CHECK(windows.FindChild(Closed(), Class) == 0);
}

TEST_CASE_FIXTURE(Fixture, "the extended style is read and set") {
    const auto window = machine.OpenWindow(Class, "");
    const std::uint32_t before = windows.ExtendedStyle(window);
    CHECK((before & (ToolWindow | Layered)) == 0);
    windows.SetExtendedStyle(window, before | ToolWindow);
    CHECK(windows.ExtendedStyle(window) == (before | ToolWindow));
    windows.SetExtendedStyle(window, before | ToolWindow | Layered);
    CHECK(windows.ExtendedStyle(window) == (before | ToolWindow | Layered));
}

TEST_CASE_FIXTURE(Fixture, "a layered window takes the alpha, again and again") {
    const auto window = machine.OpenWindow(Class, "");
    windows.SetExtendedStyle(window, windows.ExtendedStyle(window) | Layered);
    for (int alpha : {55, 100, 255, 0}) {
        windows.SetLayeredAttributes(window, 0, static_cast<std::uint8_t>(alpha), UseAlpha);
        CHECK(machine.LookAt(window).alpha == alpha);
    }
}

TEST_CASE_FIXTURE(Fixture, "a window that is not layered takes no alpha") {
    const auto window = machine.OpenWindow(Class, "");
    const std::uint32_t before = windows.ExtendedStyle(window);
    windows.SetLayeredAttributes(window, 0, 100, UseAlpha);
    CHECK(machine.LookAt(window).alpha == 255);
    CHECK(windows.ExtendedStyle(window) == before);
}

TEST_CASE_FIXTURE(Fixture, "a list takes the colour behind its texts by message") {
    const auto list = machine.OpenWindow("SysListView32", "");
    CHECK(windows.Send(list, SetTextBackground, 0, 0xFFFFFFFF) == 1);
    CHECK(machine.LookAt(list).textBackground == 0xFFFFFFFF);
    CHECK(windows.Send(list, SetTextBackground, 0, 1) == 1);
    CHECK(machine.LookAt(list).textBackground == 1);
}

TEST_CASE_FIXTURE(Fixture, "a window is hidden, and shown again at another place and size") {
    const auto parent = machine.OpenWindow(Class, "");
    const auto child = machine.OpenWindow("QuillmoreChild", "", parent);
    windows.SetPosition(child, Bottom, {}, Hide);
    CHECK_FALSE(machine.LookAt(child).visible);
    CHECK(machine.LookAt(child).place == toolkit::Rect{});
    windows.SetPosition(child, 0, {10, 20, 300, 200}, Show);
    CHECK(machine.LookAt(child).visible);
    CHECK(machine.LookAt(child).place == toolkit::Rect{10, 20, 300, 200});
}

TEST_CASE_FIXTURE(Fixture, "a window draws itself anew before the call returns") {
    const auto window = machine.OpenWindow(Class, "");
    windows.SetPosition(window, 0, {0, 0, 100, 100}, Show);
    const int before = machine.LookAt(window).redraws;
    windows.Redraw(window);
    CHECK(machine.LookAt(window).redraws == before + 1);
}

TEST_CASE_FIXTURE(Fixture, "calls on no window or a closed one do nothing") {
    const auto other = machine.OpenWindow(Class, "");
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
