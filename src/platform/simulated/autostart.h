#pragma once

#include <map>
#include <string>

#include "platform/autostart.h"

namespace platform::simulated {

class Faults;
class Journal;

class AutoStart final : public platform::AutoStart {
  public:
    AutoStart(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    bool AutoStartAdd(std::string_view directory, std::string_view title,
                      std::string_view executable) override;
    bool AutoStartRemove(std::string_view title) override;
    bool AutoStartExists(std::string_view title) const override;

    // Title to start command.
    std::map<std::string, std::string> entries;

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
