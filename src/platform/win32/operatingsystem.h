#pragma once

#include "platform/operatingsystem.h"

namespace platform::win32 {

// The vendor's name of a version of Windows; one without a name here is called by its numbers.
std::string NameOfWindows(int major, int minor);

class OperatingSystem final : public platform::OperatingSystem {
  public:
    OperatingSystemFacts Facts() const override;
};

}  // namespace platform::win32
