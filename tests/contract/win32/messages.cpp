#include "platform/win32/messages.h"

#include <doctest/doctest.h>

#include "contract/win32/boxes.h"
#include "platform/win32/handle.h"

namespace {

namespace message = platform::message;
namespace win32 = platform::win32;

win32::WindowHandle VisibleWindow() {
    return win32::WindowHandle(CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPED | WS_VISIBLE,
                                               0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr));
}

}  // namespace

TEST_CASE("a message box shows title and text and tells the answer") {
    win32::Messages messages;
    contract::BoxAnswerer user(message::No);
    CHECK(messages.Show("Wirklich löschen?\r\nJa oder nein", message::YesNo | message::Question,
                        "Größe") == message::No);
    CHECK(user.boxes == 1);
    CHECK(user.title == "Größe");
    CHECK(user.text == "Wirklich löschen?\r\nJa oder nein");
}

TEST_CASE("a box belongs to the active window, and to none that is hidden") {
    win32::Messages messages;
    const win32::WindowHandle window = VisibleWindow();
    contract::BoxAnswerer user(message::Ok);
    SetActiveWindow(window.Get());
    messages.Show("text", message::Information, "title");
    CHECK(user.owner == window.Get());
    ShowWindow(window.Get(), SW_HIDE);
    SetActiveWindow(window.Get());
    messages.Show("text", message::Information, "title");
    CHECK(user.boxes == 2);
    CHECK(user.owner == nullptr);
}

TEST_CASE("while a box without owner is open the program's windows are disabled") {
    win32::Messages messages;
    const win32::WindowHandle window = VisibleWindow();
    struct Watch {
        static void CALLBACK Look(HWND watched, UINT, UINT_PTR, DWORD) {
            if (!IsWindowEnabled(watched)) SetWindowTextW(watched, L"disabled");
        }
    };
    SetTimer(window.Get(), 1, 5, Watch::Look);
    SetActiveWindow(nullptr);
    ShowWindow(window.Get(), SW_HIDE);
    contract::BoxAnswerer user(message::Ok);
    messages.Show("text", message::Information, "title");
    wchar_t state[16] = {};
    GetWindowTextW(window.Get(), state, 16);
    CHECK(std::wstring_view(state) == L"disabled");
    CHECK(IsWindowEnabled(window.Get()));
}
