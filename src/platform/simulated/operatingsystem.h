#pragma once

#include "platform/operatingsystem.h"

namespace platform::simulated {

class Faults;
class Journal;

class OperatingSystem final : public platform::OperatingSystem {
  public:
    OperatingSystem(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    OperatingSystemFacts Facts() const override;

    OperatingSystemFacts facts{"Microsoft Windows XP", 5, 1, 2600};

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
