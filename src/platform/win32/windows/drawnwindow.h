#pragma once

#include <string>

#include "platform/win32/windows/controlwindow.h"
#include "toolkit/drawncontrol.h"

namespace platform::win32 {

// A window of the control's own class, which answers BM_CLICK and the text messages as a standard
// button does.
class DrawnWindow final : public ControlWindow {
  public:
    DrawnWindow(toolkit::DrawnControl& control, const Surroundings& surroundings);

    void Detach() override;
    void Refresh(toolkit::Aspect what) override;

  protected:
    Recipe Describe() const override { return {windowClass_.c_str()}; }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool HandleMouse(UINT message, WPARAM wParam);
    void Paint();
    void PaintOn(HDC dc);
    void FocusMoved(bool here);
    void TakeText();
    void Click();

    toolkit::DrawnControl& control_;
    std::wstring windowClass_;
};

}  // namespace platform::win32
