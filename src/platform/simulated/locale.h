#pragma once

#include "platform/locale.h"

namespace platform::simulated {

// German settings and code page 1252. Conversions are not journalled: the machine's registry and
// file calls show the converted text anyway.
class Locale final : public platform::Locale {
  public:
    runtime::NumberSigns Signs() const override { return signs; }
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    std::string ShortTime(const LocalTime& time) const override;
    std::string GermanDate(const LocalTime& time) const override;
    std::string ToAnsi(std::string_view text) const override;
    std::string FromAnsi(std::string_view bytes) const override;

    runtime::NumberSigns signs;
};

// Code page 1252 by itself. What it lacks, and each byte that is no UTF-8, becomes a question
// mark, a character outside the 16-bit plane two.
std::string ToWesternBytes(std::string_view text);

}  // namespace platform::simulated
