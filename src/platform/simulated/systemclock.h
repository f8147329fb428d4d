#pragma once

#include "platform/systemclock.h"

namespace platform::simulated {

class Clock;
class Faults;
class Journal;

// Sets the simulated machine's clock; its time zone is one hour east of Greenwich all year.
class SystemClock final : public platform::SystemClock {
  public:
    SystemClock(Journal& journal, Faults& faults, Clock& clock)
        : journal_(journal), faults_(faults), clock_(clock) {}

    void SetSystemTime(const LocalTime& utc) override;
    void SetLocalDate(const LocalTime& date) override;
    void SetLocalTime(const LocalTime& time) override;

  private:
    Journal& journal_;
    Faults& faults_;
    Clock& clock_;
};

}  // namespace platform::simulated
