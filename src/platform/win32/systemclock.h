#pragma once

#include <windows.h>

#include "platform/systemclock.h"

namespace platform::win32 {

class SystemClock final : public platform::SystemClock {
  public:
    // SetLocalTime or SetSystemTime.
    using Set = BOOL(WINAPI*)(const SYSTEMTIME*);

    // Tests hand in functions that only note what they are told.
    explicit SystemClock(Set setLocalTime = ::SetLocalTime, Set setSystemTime = ::SetSystemTime)
        : setLocalTime_(setLocalTime), setSystemTime_(setSystemTime) {}

    void SetSystemTime(const LocalTime& utc) override;
    void SetLocalDate(const LocalTime& date) override;
    void SetLocalTime(const LocalTime& time) override;

  private:
    void SetOrThrow(const SYSTEMTIME& moment) const;

    Set setLocalTime_;
    Set setSystemTime_;
};

}  // namespace platform::win32
