#include "platform/win32/handle.h"

#include <doctest/doctest.h>

#include <vector>

// Ownership of handles, seen on handles that only count.

namespace {

std::vector<int> closed;

struct NumberTraits {
    using Type = int;
    static int None() { return -1; }
    static bool Close(int number) {
        closed.push_back(number);
        return number != 13;
    }
};

using Number = platform::win32::Owned<NumberTraits>;

struct WindowsHandleFixture {
    WindowsHandleFixture() { closed.clear(); }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsHandleFixture, "what is owned is given back once, at the end") {
    {
        const Number number(1);
        CHECK(number);
        CHECK(closed.empty());
    }
    CHECK(closed == std::vector{1});
}

TEST_CASE_FIXTURE(WindowsHandleFixture, "the value that stands for none is never given back") {
    {
        const Number none;
        CHECK_FALSE(none);
    }
    {
        const Number none(-1);
        CHECK_FALSE(none);
    }
    Number none;
    CHECK_FALSE(none);
    CHECK_FALSE(none.Close());
    CHECK(closed.empty());
    {
        const Number zero(0);
        CHECK(zero);
    }
    CHECK(closed == std::vector{0});
}

TEST_CASE_FIXTURE(WindowsHandleFixture, "moving hands over, assigning gives back what was held") {
    Number first(1);
    Number second(std::move(first));
    CHECK(closed.empty());
    CHECK(second.Get() == 1);
    Number third(3);
    third = std::move(second);
    CHECK(closed == std::vector{3});
    CHECK(third.Get() == 1);
    Number& itself = third;
    third = std::move(itself);
    CHECK(third.Get() == 1);
    CHECK(closed == std::vector{3});
}

TEST_CASE_FIXTURE(WindowsHandleFixture, "closing early tells of success and closes once") {
    Number good(1);
    CHECK(good.Close());
    CHECK_FALSE(good.Close());
    Number refused(13);
    CHECK_FALSE(refused.Close());
    CHECK(closed == std::vector{1, 13});
}

TEST_CASE_FIXTURE(WindowsHandleFixture,
                  "releasing keeps the handle open, a call that fills in replaces it") {
    Number number(1);
    CHECK(number.Release() == 1);
    CHECK(closed.empty());
    number.Reset(2);
    *number.Out() = 3;
    CHECK(closed == std::vector{2});
    CHECK(number.Get() == 3);
}
