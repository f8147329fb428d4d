#pragma once

#include "platform/autostart.h"

namespace platform::win32 {

class AutoStart final : public platform::AutoStart {
  public:
    // A drive root may come with its backslash or without: both give "C:\<executable>.exe".
    bool AutoStartAdd(std::string_view directory, std::string_view title,
                      std::string_view executable) override;
    bool AutoStartRemove(std::string_view title) override;
    bool AutoStartExists(std::string_view title) const override;
};

}  // namespace platform::win32
