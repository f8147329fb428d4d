#pragma once

#include "platform/memory.h"
#include "platform/operatingsystem.h"
#include "platform/systemfacts.h"

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

class SystemFacts final : public platform::SystemFacts {
  public:
    SystemFacts(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::string WindowsDirectory() const override;
    std::string SystemDirectory() const override;

    std::string windowsDirectory = "C:\\WINDOWS";
    std::string systemDirectory = "C:\\WINDOWS\\system32";

  private:
    Journal& journal_;
    Faults& faults_;
};

class Memory final : public platform::Memory {
  public:
    Memory(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::string TotalPhysical() const override;

    std::string totalPhysical = "536330240";

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
