#pragma once

#include <string>

#include "platform/tray.h"

namespace platform::simulated {

class Faults;
class Journal;

class Tray final : public platform::Tray {
  public:
    Tray(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    void SetIcon() override;
    void SetTip(std::string_view text) override;
    void SetShown(bool shown) override;

    bool hasIcon = false;
    bool shown = false;
    std::string tip;

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
