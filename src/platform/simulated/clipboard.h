#pragma once

#include <optional>
#include <string>

#include "platform/clipboard.h"

namespace platform::simulated {

class Faults;
class Journal;

class Clipboard final : public platform::Clipboard {
  public:
    Clipboard(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    bool SetText(std::string_view text) override;

    // Nothing as long as the clipboard is empty.
    std::optional<std::string> text;

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
