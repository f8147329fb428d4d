#pragma once

#include <windows.h>

#include <doctest/doctest.h>

#include <functional>

#include "support/realmouse.h"
#include "windows/desk.h"

namespace windows {

// Serves the queue until that has come, for some seconds at most.
inline void ServeUntil(const std::function<bool()>& come) {
    constexpr DWORD Patience = 10000;
    const DWORD start = GetTickCount();
    while (!come()) {
        REQUIRE(GetTickCount() - start < Patience);
        ServeQueue();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
}

// For what must not come: as long as a timer of a few milliseconds would have taken several times.
inline void ServeAWhile(DWORD milliseconds = 100) {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds) {
        ServeQueue();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
}

using support::RealMouse;

}  // namespace windows
