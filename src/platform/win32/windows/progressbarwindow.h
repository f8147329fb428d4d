#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "toolkit/progressbar.h"

namespace platform::win32 {

// The common control msctls_progress32.
class ProgressBarWindow final : public ControlWindow {
  public:
    ProgressBarWindow(toolkit::ProgressBar& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowValue() override;

  private:
    toolkit::ProgressBar& control_;
};

}  // namespace platform::win32
