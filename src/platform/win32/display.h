#pragma once

#include "platform/display.h"

namespace platform::win32 {

class FormHandles;

class Display final : public platform::Display {
  public:
    explicit Display(const FormHandles& forms) : forms_(forms) {}

    toolkit::Size Size() const override;
    std::string CompactPath(const toolkit::Form& form, std::string_view path,
                            int width) const override;

  private:
    const FormHandles& forms_;
};

}  // namespace platform::win32
