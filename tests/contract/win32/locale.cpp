#include "platform/win32/locale.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/win32/text.h"

// The user's own settings decide; the test changes them for this process's view and back.

namespace {

using platform::win32::FromWide;

std::string Setting(LCTYPE which) {
    wchar_t buffer[80] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, which, buffer, 80);
    return FromWide(buffer);
}

// One of the user's regional settings, put back at the end.
class Changed {
  public:
    Changed(LCTYPE which, const wchar_t* value) : which_(which) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, which, before_, 80);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, which, value);
    }
    ~Changed() { SetLocaleInfoW(LOCALE_USER_DEFAULT, which_, before_); }

  private:
    LCTYPE which_;
    wchar_t before_[80] = {};
};

}  // namespace

TEST_CASE("the signs are those of the user's settings") {
    contract::TestMachine machine;
    const auto& locale = machine.Services().locale;
    CHECK(locale.Signs().decimal == Setting(LOCALE_SDECIMAL));
    CHECK(locale.Signs().grouping == Setting(LOCALE_STHOUSAND));
    const Changed decimal(LOCALE_SDECIMAL, L",");
    const Changed grouping(LOCALE_STHOUSAND, L".");
    CHECK(locale.Signs().decimal == ",");
    CHECK(locale.Signs().grouping == ".");
}

TEST_CASE("date and time are in the user's short and long form") {
    contract::TestMachine machine;
    const auto& locale = machine.Services().locale;
    const Changed date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
    const Changed time(LOCALE_STIMEFORMAT, L"HH:mm:ss");
    const platform::LocalTime moment{2026, 11, 2, 16, 5, 9};
    CHECK(locale.ShortDate(moment) == "02.11.2026");
    CHECK(locale.LongTime(moment) == "16:05:09");
    CHECK(locale.ShortTime(moment) == "16:05");
}

TEST_CASE("a German-speaking user gets his own names of days and months, others Germany's") {
    using platform::win32::GermanLocale;
    constexpr LCID Germany = 0x0407;
    constexpr LCID PhoneBook = 0x10407;
    CHECK(GermanLocale(Germany) == Germany);
    for (LCID own : {PhoneBook, LCID{0x0807}, LCID{0x0C07}, LCID{0x1007}, LCID{0x1407}}) {
        CHECK(GermanLocale(own) == own);
    }
    for (LCID other : {0x0409, 0x040C, 0x0411, 0x0419, 0x0413})
        CHECK(GermanLocale(other) == Germany);
}
