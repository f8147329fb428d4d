#pragma once

#include "platform/display.h"

namespace platform::simulated {

class Journal;

class Display final : public platform::Display {
  public:
    explicit Display(Journal& journal) : journal_(journal) {}

    toolkit::Size Size() const override;
    // Each character is five pixels wide.
    std::string CompactPath(const toolkit::Form& form, std::string_view path,
                            int width) const override;

    toolkit::Size size{1024, 768};

  private:
    Journal& journal_;
};

}  // namespace platform::simulated
