#include "platform/win32/menus.h"

#include <doctest/doctest.h>

#include "contract/win32/menuuser.h"
#include "platform/win32/handle.h"
#include "support/realmouse.h"
#include "toolkit/popupmenu.h"

namespace {

const toolkit::PopupMenu TestMenu{
    "mnuTest", {{"mnuOne", "Größe", nullptr}, {"t1", "", nullptr}, {"mnuTwo", "Zwei", nullptr}}};

void ServeQueue() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

// Threads hand the front over in their own time.
bool ComesToFront(HWND window) {
    const DWORD start = GetTickCount();
    do {
        ServeQueue();
        if (GetForegroundWindow() == window) return true;
        Sleep(5);
    } while (GetTickCount() - start < 10000);
    return false;
}

// What stands in front before the menu opens, with a thread of its own.
class OtherWindow {
  public:
    OtherWindow() : thread_(CreateThread(nullptr, 0, Serve, this, 0, nullptr)) {
        while (!window) Sleep(5);
        SetForegroundWindow(window);
        ComesToFront(window);
    }
    ~OtherWindow() {
        PostMessageW(window, WM_CLOSE, 0, 0);
        WaitForSingleObject(thread_.Get(), INFINITE);
    }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

    HWND volatile window = nullptr;

  private:
    static DWORD WINAPI Serve(void* self) {
        const HWND made = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP | WS_VISIBLE,
                                          0, 0, 20, 20, nullptr, nullptr, nullptr, nullptr);
        static_cast<OtherWindow*>(self)->window = made;
        MSG message;
        while (IsWindow(made) && GetMessageW(&message, nullptr, 0, 0) > 0) {
            DispatchMessageW(&message);
        }
        return 0;
    }

    platform::win32::KernelHandle thread_;
};

std::wstring ClassOfWindow(HWND window) {
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
    const support::RealMouse only;
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
    CHECK(ClassOfWindow(front) == L"QuillmoreHidden");
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

TEST_CASE("a menu with a place of its own stands there, wherever the mouse is") {
    platform::win32::Menus menus;
    toolkit::PopupMenu placed = TestMenu;
    placed.place = {230, 170};
    const support::RealMouse only;
    SetCursorPos(20, 15);
    contract::MenuUser user("");
    menus.Choose(placed);
    CHECK(user.place.left == 230);
    CHECK(user.place.top == 170);
}

TEST_CASE("after a menu whoever was in front before is there again") {
    platform::win32::Menus menus;
    const OtherWindow other;
    for (const char* item : {"", "Zwei"}) {
        HWND front = nullptr;
        contract::MenuUser user(item, [&] { front = GetForegroundWindow(); });
        menus.Choose(TestMenu);
        CHECK(ClassOfWindow(front) == L"QuillmoreHidden");
        CHECK(ComesToFront(other.window));
    }
}

TEST_CASE("what a chosen item has brought to the front stays there") {
    platform::win32::Menus menus;
    const OtherWindow before;
    contract::MenuUser user("Zwei");
    menus.Choose(TestMenu);
    const OtherWindow shown;
    ServeQueue();
    CHECK(GetForegroundWindow() == shown.window);
}

TEST_CASE("a menu over a window of the program's own takes nothing from it") {
    platform::win32::Menus menus;
    const platform::win32::WindowHandle own(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"",
                                                            WS_POPUP | WS_VISIBLE, 0, 0, 20, 20,
                                                            nullptr, nullptr, nullptr, nullptr));
    SetForegroundWindow(own.Get());
    HWND front = nullptr;
    contract::MenuUser user("Zwei", [&] { front = GetForegroundWindow(); });
    CHECK(menus.Choose(TestMenu) == &TestMenu.items[2]);
    CHECK(front == own.Get());
    CHECK(GetForegroundWindow() == own.Get());
}

TEST_CASE("nobody can close or block the window behind the menus for good") {
    platform::win32::Menus menus;
    const OtherWindow other;
    {
        contract::MenuUser user("");
        menus.Choose(TestMenu);
    }
    const HWND window = FindWindowW(L"QuillmoreHidden", nullptr);
    SendMessageW(window, WM_CLOSE, 0, 0);
    SendMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    REQUIRE(IsWindow(window));
    // As a box without an owner does.
    EnableWindow(window, FALSE);
    bool enabled = false;
    contract::MenuUser user("Zwei", [&] { enabled = IsWindowEnabled(window); });
    CHECK(menus.Choose(TestMenu) == &TestMenu.items[2]);
    CHECK(enabled);
}
