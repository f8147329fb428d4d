#pragma once

#include "platform/locale.h"

namespace platform::win32 {

// The locale, as the system numbers them, whose names of days and months are shown to a user of
// that one: German ones in any case.
std::uint32_t GermanLocale(std::uint32_t users);

class Locale final : public platform::Locale {
  public:
    runtime::NumberSigns Signs() const override;
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    std::string ShortTime(const LocalTime& time) const override;
    std::string GermanDate(const LocalTime& time) const override;
    std::string ToAnsi(std::string_view text) const override;
    std::string FromAnsi(std::string_view bytes) const override;
};

}  // namespace platform::win32
