#pragma once

#include <memory>
#include <string>

#include "platform/win32/windows/buffer.h"
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
    void* Handle() const override { return Window(); }
    void SetRegion(const toolkit::Region& parts) override;
    void KeepBackground(bool kept) override;

  protected:
    Recipe Describe() const override { return {windowClass_.c_str()}; }
    void Prepare() override { control_.Show(Client()); }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool SetPointer() const;
    toolkit::Rect Client() const;
    void Paint();
    void PaintOn(HDC dc);
    void FocusMoved(bool here);
    void TakeText();
    void Click();

    toolkit::DrawnControl& control_;
    std::wstring windowClass_;
    std::unique_ptr<Buffer> background_;
};

}  // namespace platform::win32
