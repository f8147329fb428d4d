// Every conversion, in both directions, goes by the signs of the locale that it is given.
#include <doctest/doctest.h>

#include "runtime/number.h"
#include "runtime/signs.h"
#include "support/failureof.h"

using namespace runtime;

namespace {

// A hard blank and a middle dot: each is one character and two bytes.
const NumberSigns TwoBytes{.decimal = "\u00B7", .grouping = "\u00A0"};

}  // namespace

TEST_CASE("the same text is a thousand and more in one locale and a fraction in the other") {
    CHECK(ParseNumber("1.500", German) == 1500.0);
    CHECK(ParseNumber("1.500", English) == 1.5);
    CHECK(ToWholeNumber("1.500", German) == 1500);
    CHECK(ToWholeNumber("1.500", English) == 2);
    CHECK(ToShortNumber("1.500", German) == 1500);
    CHECK(ToShortNumber("1.500", English) == 2);
    CHECK(ToSingle("1.500", German) == 1500.0f);
    CHECK(ToSingle("1.500", English) == 1.5f);
}

TEST_CASE("the signs of one locale in the wrong order are no number in it") {
    CHECK(IsNumeric("1.234,5", German));
    CHECK_FALSE(IsNumeric("1.234,5", English));
    CHECK(FailureOf([] { ToWholeNumber("1.234,5", English); }) == TypeMismatch);
    CHECK(FailureOf([] { ToShortNumber("1.234,5", English); }) == TypeMismatch);
    CHECK(FailureOf([] { ToSingle("1.234,5", English); }) == TypeMismatch);
}

TEST_CASE("a number's text has the decimal sign of the locale, whatever its precision") {
    CHECK(ToText(-0.25, English) == "-0.25");
    CHECK(ToText(-0.25f, German) == "-0,25");
    CHECK(ToText(-0.25f, English) == "-0.25");
    CHECK(ToText(1.5e-20f, English) == "1.5E-20");
}

TEST_CASE("signs of several bytes are read and written whole") {
    CHECK(ParseNumber("1\u00A0234\u00B75", TwoBytes) == 1234.5);
    CHECK(ToText(1.5, TwoBytes) == "1\u00B75");
    CHECK(ToSingle(ToText(-1.5f, TwoBytes), TwoBytes) == -1.5f);
}

TEST_CASE("a character that only begins like the locale's sign is not the sign") {
    CHECK_FALSE(IsNumeric("1\u00A9234", TwoBytes));
    CHECK_FALSE(IsNumeric("1\u00B85", TwoBytes));
    CHECK_FALSE(IsNumeric("1\xC2", TwoBytes));
}

TEST_CASE("a sign that is decimal and grouping sign at once is read as the decimal sign") {
    const NumberSigns same{.decimal = ",", .grouping = ","};
    CHECK(ParseNumber("1,5", same) == 1.5);
}

TEST_CASE("grouping signs stand anywhere behind the first digit and before the decimal sign") {
    CHECK(ParseNumber("1..5", German) == 15.0);
    CHECK(ParseNumber("15.", German) == 15.0);
    CHECK(ParseNumber("1.,5", German) == 1.5);
    CHECK_FALSE(IsNumeric("-.5", German));
    CHECK_FALSE(IsNumeric("1,.5", German));
}

TEST_CASE("a hexadecimal or octal form has neither signs of the locale nor an exponent") {
    for (const char* text : {"&H1.000", "&H1,5", "&O1,5", "&O1e1", "&H-1"}) {
        CAPTURE(text);
        CHECK_FALSE(IsNumeric(text, German));
    }
}
