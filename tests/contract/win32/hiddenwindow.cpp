// The windows that are never shown, and what is without them.
#include "platform/win32/hiddenwindow.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"

namespace {

// Has the system refuse every window of this thread while it lives.
class NoWindows {
  public:
    NoWindows() : hook_(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {}
    ~NoWindows() { UnhookWindowsHookEx(hook_); }
    NoWindows(const NoWindows&) = delete;
    NoWindows& operator=(const NoWindows&) = delete;

  private:
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
        return code == HCBT_CREATEWND ? 1 : CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_;
};

}  // namespace

TEST_CASE("a hidden window cannot be closed from outside and hears nothing of it") {
    std::vector<UINT> heard;
    platform::win32::HiddenWindow hidden(
        [&](UINT message, WPARAM, LPARAM) { heard.push_back(message); });
    const HWND window = hidden.Get();
    heard.clear();
    SendMessageW(window, WM_CLOSE, 0, 0);
    CHECK(IsWindow(window));
    CHECK(heard.empty());
    SendMessageW(window, WM_APP, 0, 0);
    CHECK(heard == std::vector<UINT>{WM_APP});
}

TEST_CASE("a hidden window that the system refuses is asked for again the next time") {
    platform::win32::HiddenWindow hidden([](UINT, WPARAM, LPARAM) {});
    {
        const NoWindows refused;
        CHECK(hidden.Get() == nullptr);
    }
    CHECK(IsWindow(hidden.Get()));
}

TEST_CASE("a timer whose ticks could reach nobody is a failure") {
    contract::TestMachine machine;
    platform::Clock& clock = machine.Services().clock;
    {
        const NoWindows refused;
        CHECK_THROWS_AS(clock.StartTimer(1000, [] {}), runtime::Failure);
    }
    CHECK_NOTHROW(clock.StopTimer(clock.StartTimer(1000, [] {})));
}
