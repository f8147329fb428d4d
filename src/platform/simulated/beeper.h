#pragma once

#include "platform/beeper.h"

namespace platform::simulated {

class Journal;

// Counts what would be heard.
class Beeper final : public platform::Beeper {
  public:
    explicit Beeper(Journal& journal) : journal_(journal) {}

    void Beep() override;

    int beeps = 0;

  private:
    Journal& journal_;
};

}  // namespace platform::simulated
