#include "platform/win32/locale.h"

#include <windows.h>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

// A sign of at most one character; `usual` when the user's settings hold none.
std::string Sign(LCTYPE which, const char* usual) {
    wchar_t buffer[8] = {};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, which, buffer, 8);
    return length > 1 ? FromWide({buffer, 1}) : usual;
}

SYSTEMTIME SystemTime(const LocalTime& time) {
    SYSTEMTIME result = {};
    result.wYear = static_cast<WORD>(time.year);
    result.wMonth = static_cast<WORD>(time.month);
    result.wDay = static_cast<WORD>(time.day);
    result.wHour = static_cast<WORD>(time.hour);
    result.wMinute = static_cast<WORD>(time.minute);
    result.wSecond = static_cast<WORD>(time.second);
    return result;
}

std::string TimeText(const LocalTime& time, DWORD flags) {
    const SYSTEMTIME moment = SystemTime(time);
    wchar_t buffer[80] = {};
    GetTimeFormatW(LOCALE_USER_DEFAULT, flags, &moment, nullptr, buffer, 80);
    return FromWide(buffer);
}

}  // namespace

std::uint32_t GermanLocale(std::uint32_t users) {
    const bool isGerman = PRIMARYLANGID(LANGIDFROMLCID(users)) == LANG_GERMAN;
    return isGerman ? users : MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
}

runtime::NumberSigns Locale::Signs() const {
    return {Sign(LOCALE_SDECIMAL, ","), Sign(LOCALE_STHOUSAND, ".")};
}

std::string Locale::ShortDate(const LocalTime& time) const {
    const SYSTEMTIME moment = SystemTime(time);
    wchar_t buffer[80] = {};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &moment, nullptr, buffer, 80);
    return FromWide(buffer);
}

std::string Locale::LongTime(const LocalTime& time) const {
    return TimeText(time, 0);
}

std::string Locale::ShortTime(const LocalTime& time) const {
    return TimeText(time, TIME_NOSECONDS);
}

std::string Locale::GermanDate(const LocalTime& time) const {
    const SYSTEMTIME moment = SystemTime(time);
    wchar_t buffer[80] = {};
    GetDateFormatW(GermanLocale(GetUserDefaultLCID()), 0, &moment, L"dddd, dd. MMMM yyyy", buffer,
                   80);
    return FromWide(buffer);
}

std::string Locale::ToAnsi(std::string_view text) const {
    return win32::ToAnsi(text);
}

std::string Locale::FromAnsi(std::string_view bytes) const {
    return win32::FromAnsi(bytes);
}

}  // namespace platform::win32
