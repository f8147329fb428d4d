#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "toolkit/controls.h"

namespace platform::win32 {

// The standard window class STATIC.
class LabelWindow final : public ControlWindow {
  public:
    LabelWindow(toolkit::Label& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

  protected:
    Recipe Describe() const override { return {L"STATIC", SS_LEFT}; }
    HFONT Font() const override {
        const bool heading = control_.Style() == toolkit::LabelStyle::Heading;
        return heading ? surroundings_.screen.Heading() : surroundings_.screen.Plain();
    }

  private:
    toolkit::Label& control_;
};

}  // namespace platform::win32
