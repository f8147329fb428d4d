#pragma once

#include "platform/win32/windows/controlwindow.h"
#include "platform/win32/windows/listeningwindow.h"
#include "platform/win32/windows/messagehook.h"
#include "toolkit/controls.h"

// The standard window class BUTTON in its three roles.
namespace platform::win32 {

class CheckBoxWindow final : public ControlWindow {
  public:
    CheckBoxWindow(toolkit::CheckBox& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

    void Notified(UINT code) override;

  protected:
    Recipe Describe() const override;
    void ShowValue() override;

  private:
    toolkit::CheckBox& control_;
};

class OptionButtonWindow final : public ControlWindow {
  public:
    OptionButtonWindow(toolkit::OptionButton& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

    void Notified(UINT code) override;
    void Detach() override;

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowValue() override;

  private:
    template <typename Action>
    void ForGroup(Action action) const;

    toolkit::OptionButton& control_;
    MessageHook focus_;
    bool focusComes_ = false;
};

class FrameWindow final : public ListeningWindow {
  public:
    FrameWindow(toolkit::Frame& control, const Surroundings& surroundings)
        : ListeningWindow(control, surroundings), control_(control) {}

  protected:
    Recipe Describe() const override;
    bool IsHeard() const override { return control_.onMouseMove || !control_.ToolTip().empty(); }
    LRESULT Hear(const HookedMessage& hooked) override;

  private:
    toolkit::Frame& control_;
};

}  // namespace platform::win32
