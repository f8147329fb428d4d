#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <vector>

#include "platform/win32/windows/controlname.h"
#include "platform/win32/windows/controlwindows.h"
#include "platform/win32/windows/surroundings.h"
#include "toolkit/form.h"

namespace platform::win32 {

// The native window of a form. The host holds it; while one of its own events runs it holds
// itself, since the event may unload the form.
class FormWindow final : public toolkit::FormView, public std::enable_shared_from_this<FormWindow> {
  public:
    FormWindow(toolkit::Form& form, const Surroundings& surroundings)
        : surroundings_(surroundings), form_(form), controls_(surroundings) {}

    // Makes the window and those of the controls, hidden, and becomes the form's view. A dialog
    // belongs to `owner` for good, the main window only while it has no taskbar entry.
    void Create(HWND owner);
    // The form and its controls get no view and no event any more, and the windows go.
    void Destroy();

    // nullptr before Create and after Destroy.
    HWND Window() const { return window_; }
    // Only to be used while there is a window.
    toolkit::Form& Form() const { return form_; }

    // Keeps the user from these windows until the form is hidden.
    void Block(const std::vector<HWND>& others);

    // Whether the message, of this window or one inside, was a key that the form or the dialog
    // rules have used up.
    bool UsesUp(MSG& message);

    void Refresh(toolkit::FormAspect what) override;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void RegisterForms();

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Command(int id, UINT code, HWND control);
    void AnswerTip(NMTTDISPINFOW& question) const;
    void PressDefault();
    void Press(toolkit::DrawnControl* button);
    void ReportPlace();
    void RememberFocus();
    void FocusSomething();

    void FitToContent();
    void SetIcons();
    void ShowVisible();
    void ShowState();
    void ShowPosition();
    void ShowTaskbarEntry();
    void ShowPointer();
    void Unblock();

    DWORD Style() const;
    DWORD ExtendedStyle() const;
    HWND Owner() const;

    const Surroundings surroundings_;
    toolkit::Form& form_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    std::optional<ControlName> name_;
    ControlWindows controls_;
    std::vector<HWND> blocked_;
    // The control that had the focus when the window was last active.
    HWND lastFocus_ = nullptr;
    // The window is being moved by the program, which is nothing to report.
    bool placing_ = false;
};

}  // namespace platform::win32
