#pragma once

#include <string>

#include "platform/systemfacts.h"

namespace sys {

// The directories of Windows, without a trailing backslash; "" when the system does not tell.
class clsGetSystemDirectoryPaths {
  public:
    explicit clsGetSystemDirectoryPaths(const platform::SystemFacts& facts) : facts_(facts) {}

    std::string WindowsDirectory() const;
    std::string SystemDirectory() const;

  private:
    const platform::SystemFacts& facts_;
};

}  // namespace sys
