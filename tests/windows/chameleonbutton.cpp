// The program's button in a real window, under a mouse and keys that really move.
#include "controls/chameleonbutton.h"

#include <doctest/doctest.h>

#include "platform/win32/clock.h"
#include "windows/realmouse.h"

using namespace windows;
using controls::ButtonState;
using Events = std::vector<std::string>;

namespace {

struct RealButton {
    Desk desk;
    RealMouse mouse;
    platform::win32::Clock clock{desk.messages};
    TestForm form{desk.host, "frmButton"};
    controls::chameleonButton& button =
        form.Add<controls::chameleonButton>("cmd", controls::Persisted{"TX=&Knopf"}, clock);
    controls::chameleonButton& next =
        form.Add<controls::chameleonButton>("cmdNext", controls::Persisted{"TX=Danach"}, clock);
    HWND window = nullptr;
    Events events;

    RealButton() {
        const auto note = [this](const char* what) {
            return [this, what] { events.push_back(what); };
        };
        button.onClick = note("Click");
        button.onDblClick = note("DblClick");
        button.onMouseOver = note("MouseOver");
        button.onMouseOut = note("MouseOut");
        toolkit::Box column = toolkit::Column({Leaf(button), Leaf(next), toolkit::Filler()});
        form.SetLayout(toolkit::Margin(toolkit::Row({column, toolkit::Filler()}), 20));
        form.Show();
        window = desk.Find(form, "cmd");
        SetForegroundWindow(desk.host.WindowOf(form));
        SetFocus(window);
        MoveAway();
        // Until no press can be the second one of a double click, begun on the window before.
        ServeAWhile(GetDoubleClickTime() + 50);
        events.clear();
    }

    void MoveOver(int x = 10) { RealMouse::MoveTo(window, x, 10); }
    void MoveAway(int x = 250) { RealMouse::MoveTo(desk.host.WindowOf(form), x, 200); }

    // The display tells moves late when the machine is busy, and with them where the mouse was.
    void Settle(ButtonState wanted, void (RealButton::*move)(int), int x) {
        for (int i = 0; i < 2; ++i) {
            ServeUntil([&] {
                (this->*move)(x ^= 1);
                return button.State() == wanted;
            });
            ServeAWhile();
        }
    }
    void Enter() { Settle(ButtonState::Hovered, &RealButton::MoveOver, 10); }
    void Leave() { Settle(ButtonState::Normal, &RealButton::MoveAway, 250); }
    void Expect(const Events& expected) {
        ServeUntil([&] { return events.size() >= expected.size(); });
        ServeAWhile();
        CHECK(Joined(events) == Joined(expected));
    }
    static std::string Joined(const Events& events) {
        std::string joined;
        for (const std::string& event : events) joined += event + " ";
        return joined;
    }
};

}  // namespace

TEST_CASE_FIXTURE(RealButton, "the real mouse's entering and leaving are told once each") {
    Enter();
    for (int x = 12; x < 40; x += 4) {
        MoveOver(x);
        ServeQueue();
    }
    Expect({"MouseOver"});
    Leave();
    Expect({"MouseOver", "MouseOut"});
    Enter();
    Leave();
    Expect({"MouseOver", "MouseOut", "MouseOver", "MouseOut"});
}

TEST_CASE_FIXTURE(RealButton, "a real click is drawn pressed and then raised") {
    Enter();
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    ServeUntil([&] { return button.State() == ButtonState::Pressed; });
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    Expect({"MouseOver", "Click"});
    CHECK(button.State() == ButtonState::Hovered);
}

TEST_CASE_FIXTURE(RealButton, "the real right button neither presses nor clicks") {
    Enter();
    int downs = 0;
    int ups = 0;
    button.onMouseDown = [&](const toolkit::Mouse& mouse) {
        downs += mouse.button == toolkit::MouseButton::Right;
    };
    button.onMouseUp = [&](const toolkit::Mouse&) { ++ups; };
    RealMouse::Send(MOUSEEVENTF_RIGHTDOWN);
    ServeUntil([&] { return downs == 1; });
    CHECK(button.State() == ButtonState::Hovered);
    RealMouse::Send(MOUSEEVENTF_RIGHTUP);
    ServeUntil([&] { return ups == 1; });
    CHECK(events == Events{"MouseOver"});
}

TEST_CASE_FIXTURE(RealButton, "leaving while the real button is held shows state 0, and no click") {
    Enter();
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    ServeUntil([&] { return button.State() == ButtonState::Pressed; });
    Leave();
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    Expect({"MouseOver", "MouseOut"});
    CHECK(GetCapture() == nullptr);
}

TEST_CASE_FIXTURE(RealButton, "a real double click is a click and a DblClick") {
    Enter();
    for (int i = 0; i < 2; ++i) {
        RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
        RealMouse::Send(MOUSEEVENTF_LEFTUP);
    }
    Expect({"MouseOver", "Click", "DblClick"});
    CHECK(GetCapture() == nullptr);
}

TEST_CASE_FIXTURE(RealButton, "the second release of a double click is told outside as well") {
    Enter();
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    Expect({"MouseOver", "Click", "DblClick"});
    CHECK(GetCapture() == window);
    bool released = false;
    button.onMouseUp = [&](const toolkit::Mouse&) { released = true; };
    MoveAway();
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    ServeUntil([&] { return released; });
    CHECK(GetCapture() == nullptr);
}

TEST_CASE_FIXTURE(
    RealButton, "a press is over when its own button goes up, outside too, not with another one") {
    Enter();
    int ups = 0;
    button.onMouseUp = [&](const toolkit::Mouse&) { ++ups; };
    RealMouse::Send(MOUSEEVENTF_RIGHTDOWN);
    RealMouse::Send(MOUSEEVENTF_LEFTDOWN);
    ServeUntil([&] { return button.State() == ButtonState::Pressed; });
    RealMouse::Send(MOUSEEVENTF_RIGHTUP);
    ServeUntil([&] { return ups == 1; });
    CHECK(GetCapture() == window);
    Leave();
    RealMouse::Send(MOUSEEVENTF_LEFTUP);
    ServeUntil([&] { return ups == 2; });
    CHECK(GetCapture() == nullptr);
    Expect({"MouseOver", "MouseOut"});
}

TEST_CASE_FIXTURE(RealButton, "the space key presses as long as it is down") {
    SendMessageW(window, WM_KEYDOWN, VK_SPACE, 0);
    CHECK(button.State() == ButtonState::Pressed);
    SendMessageW(window, WM_KEYUP, VK_SPACE, 0);
    CHECK(button.State() == ButtonState::Normal);
    CHECK(events == Events{"Click"});
}

TEST_CASE_FIXTURE(RealButton, "the arrow keys walk through the buttons of the form") {
    const HWND second = desk.Find(form, "cmdNext");
    SendMessageW(window, WM_KEYDOWN, VK_RIGHT, 0);
    CHECK(GetFocus() == second);
    SendMessageW(second, WM_KEYDOWN, VK_UP, 0);
    CHECK(GetFocus() == window);
    CHECK(events.empty());
}

TEST_CASE_FIXTURE(RealButton, "the access key clicks") {
    MSG message{};
    message.hwnd = desk.Find(form, "cmdNext");
    message.message = WM_SYSCHAR;
    message.wParam = 'k';
    message.lParam = 1 << 29;
    CHECK(IsDialogMessageW(desk.host.WindowOf(form), &message));
    Expect({"Click"});
}

TEST_CASE_FIXTURE(RealButton, "a typed character is told") {
    char16_t heard = 0;
    button.onKeyPress = [&](char16_t character) { heard = character; };
    SendMessageW(window, WM_CHAR, L'ä', 0);
    CHECK(heard == u'ä');
}

TEST_CASE_FIXTURE(RealButton, "the button tells its window") {
    CHECK(button.hwnd() == window);
}

TEST_CASE_FIXTURE(RealButton, "a window has a region as long as its look has a shape") {
    const platform::win32::RegionHandle region(CreateRectRgn(0, 0, 0, 0));
    for (std::int16_t look = 1; look <= 14; ++look) {
        CAPTURE(look);
        button.SetButtonType(look);
        const bool shaped = look >= 7 && look != 11;
        CHECK((GetWindowRgn(window, region.Get()) != ERROR) == shaped);
        if (!shaped) continue;
        RECT client{};
        GetClientRect(window, &client);
        CHECK_FALSE(PtInRegion(region.Get(), 0, 0));
        CHECK(PtInRegion(region.Get(), client.right / 2, 0));
        CHECK(PtInRegion(region.Get(), client.right / 2, client.bottom - 1));
        CHECK(PtInRegion(region.Get(), 0, client.bottom / 2));
        CHECK(PtInRegion(region.Get(), client.right - 1, client.bottom / 2));
    }
}

TEST_CASE_FIXTURE(RealButton, "over the button the mouse shows what the button says") {
    const auto shown = [&] {
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    CHECK(shown() == LoadCursorW(nullptr, IDC_ARROW));
    button.SetMousePointer(2);
    CHECK(shown() == LoadCursorW(nullptr, IDC_CROSS));
    button.SetMousePointer(3);
    CHECK(shown() == LoadCursorW(nullptr, IDC_IBEAM));
    button.SetMousePointer(77);
    CHECK(shown() == LoadCursorW(nullptr, IDC_ARROW));
    button.SetHandPointer(true);
    CHECK(shown() == LoadCursorW(nullptr, IDC_HAND));
    form.SetPointer(toolkit::Hourglass);
    CHECK(shown() == LoadCursorW(nullptr, IDC_WAIT));
}
