#include "platform/locale.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace {

struct LocaleFixture {
    contract::TestMachine machine;
    const platform::Locale& locale = machine.Services().locale;
};

// The characters of the bytes 0x80 to 0x9F in code page 1252; five bytes have none and stand for
// the control characters of their own numbers.
const char* const Specials[32] = {
    "€", "\xC2\x81", "‚",        "ƒ", "„",        "…",        "†", "‡",        "ˆ", "‰", "Š",
    "‹", "Œ",        "\xC2\x8D", "Ž", "\xC2\x8F", "\xC2\x90", "‘", "’",        "“", "”", "•",
    "–", "—",        "˜",        "™", "š",        "›",        "œ", "\xC2\x9D", "ž", "Ÿ",
};

std::string CharacterOf(int byte) {
    if (byte < 0x80) return std::string(1, static_cast<char>(byte));
    if (byte < 0xA0) return Specials[byte - 0x80];
    return {static_cast<char>(byte < 0xC0 ? 0xC2 : 0xC3), static_cast<char>(0x80 | (byte & 0x3F))};
}

}  // namespace

TEST_CASE_FIXTURE(LocaleFixture, "all 256 bytes of the code page convert both ways") {
    for (int byte = 0; byte < 256; ++byte) {
        CAPTURE(byte);
        const std::string single(1, static_cast<char>(byte));
        CHECK(locale.FromAnsi(single) == CharacterOf(byte));
        CHECK(locale.ToAnsi(CharacterOf(byte)) == single);
    }
}

TEST_CASE_FIXTURE(LocaleFixture,
                  "a text of many characters converts as a whole, an empty one too") {
    CHECK(locale.ToAnsi("") == "");
    CHECK(locale.FromAnsi("") == "");
    CHECK(locale.ToAnsi("Größe €") ==
          "Gr\xF6\xDF"
          "e \x80");
    CHECK(locale.FromAnsi("Gr\xF6\xDF"
                          "e \x80") == "Größe €");
    const std::string nul("a\0b", 3);
    CHECK(locale.ToAnsi(nul) == nul);
    CHECK(locale.FromAnsi(nul) == nul);
}

TEST_CASE_FIXTURE(LocaleFixture, "a character that the code page lacks becomes a question mark") {
    CHECK(locale.ToAnsi("a漢b") == "a?b");
    CHECK(locale.ToAnsi("я") == "?");
}

TEST_CASE_FIXTURE(LocaleFixture,
                  "a character outside the 16-bit plane becomes two question marks") {
    CHECK(locale.ToAnsi("a😀b") == "a??b");
}

TEST_CASE_FIXTURE(LocaleFixture, "the signs of numbers are one character each and not the same") {
    const auto signs = locale.Signs();
    CHECK_FALSE(signs.decimal.empty());
    CHECK_FALSE(signs.grouping.empty());
    CHECK(signs.decimal != signs.grouping);
}

TEST_CASE_FIXTURE(LocaleFixture, "the date in words has the German names of all days and months") {
    constexpr const char* Days[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                    "Donnerstag", "Freitag", "Samstag"};
    constexpr const char* Months[] = {"Januar",    "Februar", "März",     "April",
                                      "Mai",       "Juni",    "Juli",     "August",
                                      "September", "Oktober", "November", "Dezember"};
    // 2004-02-01, 2015-02-01 and 2026-02-01 are Sundays.
    for (int year : {2004, 2015, 2026}) {
        for (int day = 1; day <= 28; ++day) {
            CAPTURE(day);
            const std::string number = (day < 10 ? "0" : "") + std::to_string(day);
            CHECK(locale.GermanDate({year, 2, day}) == std::string(Days[(day - 1) % 7]) + ", " +
                                                           number + ". Februar " +
                                                           std::to_string(year));
        }
    }
    for (int month = 1; month <= 12; ++month) {
        const std::string date = locale.GermanDate({2004, month, 5});
        CHECK(date.ends_with(std::string(" 05. ") + Months[month - 1] + " 2004"));
    }
    CHECK(locale.GermanDate({2004, 1, 5}) == "Montag, 05. Januar 2004");
    CHECK(locale.GermanDate({2000, 12, 31}) == "Sonntag, 31. Dezember 2000");
    CHECK(locale.GermanDate({2004, 2, 29}) == "Sonntag, 29. Februar 2004");
}

TEST_CASE_FIXTURE(LocaleFixture, "the short time is hours and minutes") {
    const std::string time = locale.ShortTime({2004, 3, 5, 14, 7, 9});
    CHECK(time.find("07") != std::string::npos);
    CHECK(time.find("09") == std::string::npos);
}

TEST_CASE_FIXTURE(LocaleFixture, "date and time hold the digits of their moment") {
    const platform::LocalTime moment{2026, 11, 21, 16, 5, 9};
    const std::string date = locale.ShortDate(moment);
    CHECK(date.find("21") != std::string::npos);
    CHECK(date.find("11") != std::string::npos);
    CHECK(date.find("26") != std::string::npos);
    const std::string time = locale.LongTime(moment);
    CHECK(time.find("05") != std::string::npos);
    CHECK(time.find("09") != std::string::npos);
}
