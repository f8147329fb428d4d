#pragma once

#include "platform/locale.h"

namespace platform::win32 {

class Locale final : public platform::Locale {
  public:
    runtime::NumberSigns Signs() const override;
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    std::string ToAnsi(std::string_view text) const override;
    std::string FromAnsi(std::string_view bytes) const override;
};

}  // namespace platform::win32
