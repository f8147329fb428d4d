#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "toolkit/controls.h"

namespace platform::win32 {

// The common control msctls_trackbar32.
class SliderWindow final : public ControlWindow {
  public:
    SliderWindow(toolkit::Slider& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

    void Notified(UINT code) override;

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowValue() override;

  private:
    toolkit::Slider& control_;
};

}  // namespace platform::win32
