#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "runtime/number.h"

namespace platform {

// The user's regional settings and the system's ANSI code page.
class Locale {
  public:
    virtual ~Locale() = default;

    virtual runtime::NumberSigns Signs() const = 0;

    // The default short date ("21.11.2026" on a German system) and long time ("16:05:09") forms.
    virtual std::string ShortDate(const LocalTime& time) const = 0;
    virtual std::string LongTime(const LocalTime& time) const = 0;
    // The time of day without seconds ("16:05").
    virtual std::string ShortTime(const LocalTime& time) const = 0;

    // Weekday, day and month in words ("Montag, 05. Januar 2004"). The names are German on every
    // system: a German user's own ("Jänner"), otherwise those of Germany.
    virtual std::string GermanDate(const LocalTime& time) const = 0;

    // From and to the ANSI code page. A character that it lacks becomes a question mark, or the
    // platform's nearest letter; a character outside the 16-bit plane becomes two.
    virtual std::string ToAnsi(std::string_view text) const = 0;
    virtual std::string FromAnsi(std::string_view bytes) const = 0;
};

}  // namespace platform
