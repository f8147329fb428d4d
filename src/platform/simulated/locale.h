#pragma once

#include "platform/locale.h"

namespace platform::simulated {

class Faults;
class Journal;

// German settings and code page 1252. Conversions are not journalled: the machine's registry and
// file calls show the converted text anyway.
class Locale final : public platform::Locale {
  public:
    Locale(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    runtime::NumberSigns Signs() const override { return signs; }
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    std::string ToAnsi(std::string_view text) const override;
    std::string FromAnsi(std::string_view bytes) const override;

    runtime::NumberSigns signs;

  private:
    Journal& journal_;
    Faults& faults_;
};

// Code page 1252 by itself.
std::string ToWesternBytes(std::string_view text);
std::string FromWesternBytes(std::string_view bytes);

}  // namespace platform::simulated
