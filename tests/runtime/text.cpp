#include "runtime/text.h"

#include <doctest/doctest.h>

using namespace runtime;
using namespace std::string_view_literals;

TEST_CASE("the length of a text counts characters, not bytes") {
    CHECK(Length("") == 0);
    CHECK(Length("abc") == 3);
    CHECK(Length("Übernehmen") == 10);
    CHECK(Length("€") == 1);
    CHECK(Length("\xF0\x9F\x98\x80") == 1);
    CHECK(Length("a\0b"sv) == 3);
}

TEST_CASE("each malformed byte counts as one character") {
    CHECK(Length("\x80") == 1);
    CHECK(Length("\xFF\xFE") == 2);
    CHECK(Length("a\xC3") == 2);
    CHECK(Length("\xC3x") == 2);
    CHECK(Length("\xE2\x82") == 2);
    CHECK(Length("\xE2\x82x") == 3);
    CHECK(Length("\xF0\x9F\x98") == 3);
}

TEST_CASE("a character cut off at the end of a text is not completed by what lies behind it") {
    CHECK(Length(std::string_view("€", 2)) == 2);
    CHECK(Length(std::string_view("ä", 1)) == 1);
    CHECK(Left(std::string_view("€", 2), 1) == "\xE2");
}

TEST_CASE("forms that UTF-8 forbids are malformed bytes") {
    CHECK(Length("\xC0\x80") == 2);
    CHECK(Length("\xC1\xBF") == 2);
    CHECK(Length("\xE0\x9F\xBF") == 3);
    CHECK(Length("\xE0\xA0\x80") == 1);
    CHECK(Length("\xED\xA0\x80") == 3);
    CHECK(Length("\xED\x9F\xBF") == 1);
    CHECK(Length("\xF0\x8F\xBF\xBF") == 4);
    CHECK(Length("\xF0\x90\x80\x80") == 1);
    CHECK(Length("\xF4\x90\x80\x80") == 4);
    CHECK(Length("\xF4\x8F\xBF\xBF") == 1);
    CHECK(Length("\xF5\x80\x80\x80") == 4);
}

TEST_CASE("the left part of a text is cut between characters") {
    CHECK(Left("Übernehmen", 1) == "Ü");
    CHECK(Left("Übernehmen", 0) == "");
    CHECK(Left("Übernehmen", 10) == "Übernehmen");
    CHECK(Left("Übernehmen", 11) == "Übernehmen");
    CHECK(Left("", 3) == "");
    CHECK(Left("\xC3xy", 2) == "\xC3x");
}

TEST_CASE("the middle part of a text counts its first character as 0") {
    CHECK(Mid("Übernehmen", 0, 2) == "Üb");
    CHECK(Mid("Übernehmen", 1, 3) == "ber");
    CHECK(Mid("Größe", 2) == "öße");
    CHECK(Mid("Größe", 4, 10) == "e");
    CHECK(Mid("Größe", 2, 0) == "");
}

TEST_CASE("the middle part from behind the end is empty") {
    CHECK(Mid("Größe", 5) == "");
    CHECK(Mid("Größe", 500, 2) == "");
    CHECK(Mid("", 0) == "");
}

TEST_CASE("lower and upper case fold the letters of the western code page") {
    CHECK(ToLower("TRUE") == "true");
    CHECK(ToUpper("true") == "TRUE");
    CHECK(ToLower("ÄÖÜ ÀÞ") == "äöü àþ");
    CHECK(ToUpper("äöü àþ") == "ÄÖÜ ÀÞ");
}

TEST_CASE("what is no letter, or has no partner, keeps its form") {
    CHECK(ToLower("@[`{ 19 ×") == "@[`{ 19 ×");
    CHECK(ToUpper("@[`{ 19 ÷ß ÿ") == "@[`{ 19 ÷ß ÿ");
    CHECK(ToUpper("ã€") == "Ã€");
    CHECK(ToUpper("α") == "α");
    CHECK(ToLower("\xFF\xC3") == "\xFF\xC3");
}

TEST_CASE("trimming takes the blanks from both ends and nothing else") {
    CHECK(Trim("  a b  ") == "a b");
    CHECK(Trim("a") == "a");
    CHECK(Trim("") == "");
    CHECK(Trim("   ") == "");
    CHECK(Trim("\ta\t") == "\ta\t");
    CHECK(Trim(" \r\n ") == "\r\n");
}

TEST_CASE("texts compare without regard to the case of ASCII letters only") {
    CHECK(EqualsIgnoringCase("HungAppTimeout", "hungapptimeout"));
    CHECK(EqualsIgnoringCase("", ""));
    CHECK_FALSE(EqualsIgnoringCase("a", "ab"));
    CHECK_FALSE(EqualsIgnoringCase("a", "b"));
    CHECK_FALSE(EqualsIgnoringCase("Ä", "ä"));
    CHECK_FALSE(EqualsIgnoringCase("[", "{"));
}
