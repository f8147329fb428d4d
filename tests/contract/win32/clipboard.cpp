#include "platform/clipboard.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/win32/handle.h"

namespace {

// Holds the clipboard open for a window of its own, as another program does.
DWORD WINAPI HoldClipboard(void* parameter) {
    const auto* events = static_cast<const HANDLE*>(parameter);
    const platform::win32::WindowHandle window(CreateWindowExW(
        0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
    OpenClipboard(window.Get());
    SetEvent(events[0]);
    WaitForSingleObject(events[1], 10000);
    CloseClipboard();
    return 0;
}

}  // namespace

TEST_CASE("a clipboard that somebody else holds open is refused and keeps its text") {
    using platform::win32::KernelHandle;
    contract::TestMachine machine;
    platform::Clipboard& clipboard = machine.Services().clipboard;
    REQUIRE(clipboard.SetText("zuvor"));
    const KernelHandle held(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    const KernelHandle enough(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    HANDLE events[] = {held.Get(), enough.Get()};
    const KernelHandle other(CreateThread(nullptr, 0, HoldClipboard, events, 0, nullptr));
    REQUIRE(WaitForSingleObject(held.Get(), 10000) == WAIT_OBJECT_0);
    CHECK_FALSE(clipboard.SetText("danach"));
    SetEvent(enough.Get());
    WaitForSingleObject(other.Get(), 10000);
    CHECK(machine.ClipboardText() == "zuvor");
    CHECK(clipboard.SetText("danach"));
}

TEST_CASE("the text is kept as UTF-16 with its terminating NUL") {
    contract::TestMachine machine;
    REQUIRE(machine.Services().clipboard.SetText("\xC3\xA4"));
    REQUIRE(OpenClipboard(nullptr));
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    REQUIRE(memory);
    CHECK(GlobalSize(memory) >= 4);
    const auto* text = static_cast<const wchar_t*>(GlobalLock(memory));
    CHECK(text[0] == 0xE4);
    CHECK(text[1] == 0);
    GlobalUnlock(memory);
    CloseClipboard();
}
