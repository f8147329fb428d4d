#include "platform/simulated/locale.h"

#include <doctest/doctest.h>

#include <cstdint>

#include "runtime/encoding.h"

using platform::simulated::Locale;
using platform::simulated::ToWesternBytes;

TEST_CASE("dates and times have the German forms") {
    Locale locale;
    CHECK(locale.ShortDate({2004, 3, 5, 14, 7, 9}) == "05.03.2004");
    CHECK(locale.LongTime({2004, 3, 5, 14, 7, 9}) == "14:07:09");
    CHECK(locale.ShortDate({2004, 12, 31, 0, 0, 0}) == "31.12.2004");
    CHECK(locale.LongTime({2004, 12, 31, 0, 0, 0}) == "00:00:00");
    CHECK(locale.Signs().decimal == ",");
    CHECK(locale.Signs().grouping == ".");
}

TEST_CASE("German letters and the code page's own signs are one byte each") {
    CHECK(ToWesternBytes("Überprüfung ß") ==
          "\xDC"
          "berpr\xFC"
          "fung \xDF");
    CHECK(ToWesternBytes("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ") ==
          "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99"
          "\x9A\x9B\x9C\x9E\x9F");
    CHECK(runtime::FromWestern("\x80 \xFC \x9F") == "€ ü Ÿ");
}

TEST_CASE("every byte survives the way to text and back") {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    CHECK(ToWesternBytes(runtime::FromWestern(bytes)) == bytes);
}

TEST_CASE("the unassigned bytes stand for the control characters of the same number") {
    CHECK(runtime::FromWestern("\x81\x8D\x8F\x90\x9D") == "\u0081\u008D\u008F\u0090\u009D");
    CHECK(ToWesternBytes("\u0081\u0080") == "\x81?");
}

TEST_CASE("what the code page lacks becomes a question mark, outside the 16-bit plane two") {
    CHECK(ToWesternBytes("a日ł—b") ==
          "a??\x97"
          "b");
    CHECK(ToWesternBytes("😀") == "??");
    CHECK(ToWesternBytes("\xF4\x8F\xBF\xBF") == "??");
}

TEST_CASE("each byte that is no UTF-8 becomes a question mark") {
    CHECK(ToWesternBytes("\xFC"
                         "ber") == "?ber");
    CHECK(ToWesternBytes("\xC3") == "?");
    CHECK(ToWesternBytes("\xC3(") == "?(");
    CHECK(ToWesternBytes("\xC0\x80") == "??");
    CHECK(ToWesternBytes("\xE0\x80\x80") == "???");
    CHECK(ToWesternBytes("\xED\xA0\x80") == "???");
    CHECK(ToWesternBytes("\xF0\x8F\xBF\xBF") == "????");
    CHECK(ToWesternBytes("\xF4\x90\x80\x80") == "????");
    CHECK(ToWesternBytes("\x80\xBF\xFF") == "???");
    CHECK(ToWesternBytes("\xF0\x9F\x98") == "???");
}

TEST_CASE("an empty text has no bytes, and a NUL is kept") {
    CHECK(ToWesternBytes("") == "");
    CHECK(ToWesternBytes(std::string_view("a\0b", 3)) == std::string("a\0b", 3));
}
