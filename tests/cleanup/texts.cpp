#include "cleanup/texts.h"

#include <doctest/doctest.h>

#include "platform/simulated/locale.h"

using cleanup::DateText;
using cleanup::TrimAtNul;

TEST_CASE("a text is trimmed at its first NUL") {
    CHECK(TrimAtNul(std::string("abc\0def\0", 8)) == "abc");
    CHECK(TrimAtNul("abc") == "abc");
    CHECK(TrimAtNul(std::string("\0abc", 4)) == "");
    CHECK(TrimAtNul("") == "");
}

TEST_CASE("a moment has date and time, midnight no time, the day of no date no date") {
    const platform::simulated::Locale locale;
    CHECK(DateText(locale, {2004, 1, 5, 16, 5, 9}) == "05.01.2004 16:05:09");
    CHECK(DateText(locale, {2004, 1, 5, 0, 0, 0}) == "05.01.2004");
    CHECK(DateText(locale, {2004, 1, 5, 0, 0, 1}) == "05.01.2004 00:00:01");
    CHECK(DateText(locale, {1899, 12, 30, 16, 5, 9}) == "16:05:09");
}
