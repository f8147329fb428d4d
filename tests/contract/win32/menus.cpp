#include "platform/win32/menus.h"

#include <doctest/doctest.h>

#include "contract/win32/menuuser.h"
#include "toolkit/popupmenu.h"

namespace {

const toolkit::PopupMenu TestMenu{
    "mnuTest", {{"mnuOne", "Größe", nullptr}, {"t1", "", nullptr}, {"mnuTwo", "Zwei", nullptr}}};

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

}  // namespace

TEST_CASE("scripts read the captions of an open menu, and its separators") {
    platform::win32::Menus menus;
    contract::MenuUser user("Zwei");
    menus.Choose(TestMenu);
    CHECK(user.menus == 1);
    CHECK(user.captions == std::vector<std::string>{"Größe", "-", "Zwei"});
}

TEST_CASE("a menu stands at the mouse") {
    platform::win32::Menus menus;
    SetCursorPos(200, 150);
    contract::MenuUser user("");
    menus.Choose(TestMenu);
    POINT mouse{};
    GetCursorPos(&mouse);
    CHECK(user.place.left == mouse.x);
    CHECK(user.place.top == mouse.y);
}

TEST_CASE("while a menu is open the program is in front, so that a click elsewhere closes it") {
    platform::win32::Menus menus;
    HWND front = nullptr;
    contract::MenuUser user("Größe", [&] { front = GetForegroundWindow(); });
    menus.Choose(TestMenu);
    CHECK(ClassOf(front) == L"QuillmoreHidden");
}

TEST_CASE("a menu is followed by a message of its own and leaves no handle behind") {
    platform::win32::Menus menus;
    contract::MenuUser user("Zwei");
    menus.Choose(TestMenu);
    MSG message{};
    const HWND window = FindWindowW(L"QuillmoreHidden", nullptr);
    REQUIRE(PeekMessageW(&message, window, 0, 0, PM_REMOVE));
    CHECK(message.message == WM_NULL);
    CHECK_FALSE(IsMenu(user.handle));
}
