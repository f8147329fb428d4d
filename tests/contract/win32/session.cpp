#include "platform/win32/session.h"

#include <windows.h>

#include <doctest/doctest.h>

using platform::win32::ExitFlags;

// Only the flags: no test ends a session.

TEST_CASE("each action of the session object has its flags, force adds its own") {
    CHECK(ExitFlags(2, 0) == EWX_REBOOT);
    CHECK(ExitFlags(4, 0) == EWX_LOGOFF);
    CHECK(ExitFlags(8, 0) == EWX_POWEROFF);
    CHECK(ExitFlags(2, 1) == (EWX_REBOOT | EWX_FORCE));
    CHECK(ExitFlags(4, 1) == (EWX_LOGOFF | EWX_FORCE));
    CHECK(ExitFlags(8, 1) == (EWX_POWEROFF | EWX_FORCE));
}

TEST_CASE("other actions do nothing") {
    for (int action : {-1, 0, 1, 3, 5, 6, 16}) {
        CAPTURE(action);
        CHECK_FALSE(ExitFlags(action, 0));
        CHECK_FALSE(ExitFlags(action, 1));
    }
}
