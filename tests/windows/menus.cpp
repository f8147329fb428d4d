// Menus over a window, by the keys and the mouse as the system tells of them.
#include "platform/win32/menus.h"

#include <doctest/doctest.h>

#include <optional>
#include <utility>

#include "toolkit/popupmenu.h"
#include "windows/listfixture.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

// A list with a menu, in front.
struct MenuList : ListFixture {
    RealMouse mouse;
    platform::win32::Menus menus;
    toolkit::PopupMenu menu{"mnuTest", {{"mnuOne", "Eins", nullptr}, {"mnuTwo", "Zwei", nullptr}}};
    std::vector<std::string> chosen;
    std::vector<int> keys;

    MenuList() {
        Fill(100);
        list.onRightButton = [this] {
            menu.place = list.MenuPlace();
            const toolkit::MenuItem* item = menus.Choose(menu);
            chosen.push_back(item ? item->name : "nothing");
        };
        form.keyDown = [this](int key) {
            keys.push_back(key);
            return false;
        };
        SetForegroundWindow(desk.host.WindowOf(form));
        SetFocus(window);
        ServeQueue();
    }

    // Serves the window as the program does, until that has come.
    void Serve(const std::function<bool()>& come) {
        const DWORD start = GetTickCount();
        while (!come()) {
            REQUIRE(GetTickCount() - start < 10000);
            desk.host.DoEvents();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        }
    }

    static void Press(WORD key) {
        RealMouse::Press(key, true);
        RealMouse::Press(key, false);
    }

    // Opens the menu by its key and presses others in it.
    void UseMenu(std::vector<WORD> answers) {
        MenuLook look(std::move(answers));
        const std::size_t before = chosen.size();
        Press(VK_APPS);
        Serve([&] { return chosen.size() > before; });
        place = look.place;
    }

    // The upper left corner of the row's text.
    POINT RowPlace(int row, bool below) const {
        RECT area{};
        area.left = LVIR_LABEL;
        Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
        POINT point{area.left, below ? area.bottom : area.top};
        ClientToScreen(window, &point);
        return point;
    }

    // Where the last menu stood.
    RECT place{};

  private:
    // Notes where the menu of this thread stands and presses the keys, from a timer: the thread
    // itself waits in the menu.
    struct MenuLook {
        explicit MenuLook(std::vector<WORD> pressed) : answers(std::move(pressed)) {
            current = this;
        }
        ~MenuLook() { KillTimer(nullptr, timer); }
        MenuLook(const MenuLook&) = delete;
        MenuLook& operator=(const MenuLook&) = delete;

        static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
            const HWND found = FindWindowW(L"#32768", nullptr);
            if (!IsWindowVisible(found)) return;
            GetWindowRect(found, &current->place);
            for (const WORD key : std::exchange(current->answers, {})) Press(key);
        }

        std::vector<WORD> answers;
        RECT place{};
        UINT_PTR timer = SetTimer(nullptr, 0, 20, Look);
        static inline MenuLook* current = nullptr;
    };
};

}  // namespace

TEST_CASE_FIXTURE(MenuList, "after a menu the keys go to the window that had them") {
    UseMenu({VK_ESCAPE});
    CHECK(chosen == std::vector<std::string>{"nothing"});
    CHECK(GetForegroundWindow() == desk.host.WindowOf(form));
    CHECK(GetFocus() == window);
    Press(VK_F4);
    Serve([&] { return !keys.empty() && keys.back() == VK_F4; });

    UseMenu({VK_DOWN, VK_DOWN, VK_RETURN});
    CHECK(chosen.back() == "mnuTwo");
    Press(VK_F4);
    Serve([&] { return keys.back() == VK_F4; });
}

TEST_CASE_FIXTURE(MenuList, "the menu's key opens it below the row that the keyboard is on") {
    list.SetSelected(2, true);
    UseMenu({VK_ESCAPE});
    const POINT row = RowPlace(2, true);
    CHECK(place.left == row.x);
    CHECK(place.top == row.y);

    // One that is out of sight comes into it.
    list.SetSelected(70, true);
    UseMenu({VK_ESCAPE});
    const POINT away = RowPlace(70, true);
    CHECK(place.left == away.x);
    CHECK(place.top == away.y);
    RECT area{};
    GetWindowRect(window, &area);
    CHECK(away.y <= area.bottom);
}

TEST_CASE_FIXTURE(MenuList, "on no row the menu's key opens it in the list's corner") {
    UseMenu({VK_ESCAPE});
    POINT corner{};
    ClientToScreen(window, &corner);
    CHECK(place.top == corner.y);
    CHECK(place.left - corner.x < 10);
}

TEST_CASE_FIXTURE(MenuList, "the right button leaves the menu's place to the mouse") {
    std::optional<toolkit::Point> asked = toolkit::Point{};
    list.onRightButton = [&] { asked = list.MenuPlace(); };
    Press(VK_APPS);
    Serve([&] { return asked->x != 0; });
    const POINT row = RowPlace(1, false);
    SetCursorPos(row.x + 5, row.y + 5);
    RealMouse::Send(MOUSEEVENTF_RIGHTDOWN);
    RealMouse::Send(MOUSEEVENTF_RIGHTUP);
    Serve([&] { return !asked; });
    CHECK(list.SelectedRow() == 1);
}
