#include <doctest/doctest.h>

#include "runtime/number.h"
#include "support/failureof.h"

using runtime::LeadingNumber;

TEST_CASE("the number at the head of a text is read up to the first character that does not fit") {
    CHECK(LeadingNumber("1500") == 1500);
    CHECK(LeadingNumber("12abc") == 12);
    CHECK(LeadingNumber("1.5.7") == 1.5);
    CHECK(LeadingNumber("12-") == 12);
    CHECK(LeadingNumber("12ä3") == 12);
    CHECK(LeadingNumber(std::string_view("12\0003", 4)) == 12);
}

TEST_CASE("a text without a number at its head leads with 0") {
    for (const char* text :
         {"", " ", "abc", "abc12", "-", "+", ".", "-.", "e3", "--5", "&", "&H"}) {
        CAPTURE(text);
        CHECK(LeadingNumber(text) == 0);
    }
}

TEST_CASE("only the point is a decimal sign at the head of a text") {
    CHECK(LeadingNumber("1.5") == 1.5);
    CHECK(LeadingNumber(".5") == 0.5);
    CHECK(LeadingNumber("5.") == 5);
    CHECK(LeadingNumber("1,5") == 1);
    CHECK(LeadingNumber("1.000,5") == 1);
}

TEST_CASE("blanks, tabs and line ends are skipped wherever they stand") {
    CHECK(LeadingNumber("  12") == 12);
    CHECK(LeadingNumber(" 1 2") == 12);
    CHECK(LeadingNumber("1\t2\r\n3") == 123);
    CHECK(LeadingNumber("- 5") == -5);
    CHECK(LeadingNumber("1 e 3") == 1000);
    CHECK(LeadingNumber("& H F F") == 255);
}

TEST_CASE("a leading number has its sign in front") {
    CHECK(LeadingNumber("-5") == -5);
    CHECK(LeadingNumber("+5") == 5);
}

TEST_CASE("a leading number may have an exponent, and one that is cut short does not count") {
    CHECK(LeadingNumber("1e3") == 1000);
    CHECK(LeadingNumber("1D-3") == 0.001);
    CHECK(LeadingNumber("1e") == 1);
    CHECK(LeadingNumber("1e+") == 1);
    CHECK(LeadingNumber("1ex") == 1);
}

TEST_CASE("a leading number may be hexadecimal or octal") {
    CHECK(LeadingNumber("&HFF") == 255);
    CHECK(LeadingNumber("&HFFFF") == -1);
    CHECK(LeadingNumber("&HFFx") == 255);
    CHECK(LeadingNumber("&O17") == 15);
    CHECK(LeadingNumber("&178") == 15);
}

TEST_CASE("a leading number beyond the range of a double is an overflow") {
    CHECK(FailureOf([] { LeadingNumber("1e400"); }) == 6);
    CHECK(FailureOf([] { LeadingNumber("-1e400 Byte"); }) == 6);
    CHECK(FailureOf([] { LeadingNumber("&H100000000"); }) == 6);
    CHECK(LeadingNumber("1e308") == 1e308);
}
