#pragma once

#include "platform/systemfacts.h"

namespace platform::win32 {

class SystemFacts final : public platform::SystemFacts {
  public:
    std::string WindowsDirectory() const override;
    std::string SystemDirectory() const override;
    std::string TempPath() const override;
    std::string UserName() const override;
    std::string ExpandEnvironment(std::string_view text) const override;
    DiskSpace Space(std::string_view directory) const override;
};

}  // namespace platform::win32
