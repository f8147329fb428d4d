#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/win32/windows/controlname.h"
#include "platform/win32/windows/surroundings.h"
#include "platform/win32/windows/tipwindow.h"
#include "toolkit/control.h"

namespace platform::win32 {

// The native window behind one control. It is held by its form's window; while one of its own
// events runs it holds itself, since the event may end the form.
class ControlWindow : public toolkit::ControlView,
                      public std::enable_shared_from_this<ControlWindow> {
  public:
    ~ControlWindow() override;
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

    // Makes the native window there, in its parent's pixels, and becomes the control's view.
    void Create(HWND parent, int id, const toolkit::Rect& area);
    // The control gets no view and no event any more; the native window is the form's to destroy.
    virtual void Detach();
    // Comes before Detach.
    void DetachTip() { tip_.Leave(); }
    // The mouse is over the control, which may have a tip to offer.
    void PointerCame();
    // That tip is to be seen, and asks for its text.
    void AnswerTip(NMTTDISPINFOW& question) { tip_.Answer(question, TipText()); }

    // nullptr before Create and after Detach.
    HWND Window() const { return window_; }
    toolkit::Control& Control() const { return control_; }

    // Puts the native window there, in its parent's pixels. A layout mostly leaves a window where
    // it is, and to say that again costs as much as to move it: then nothing happens, and the
    // answer is false.
    virtual bool PlaceAt(const toolkit::Rect& area);

    // Whether the keyboard can go there now.
    bool TakesFocus() const;

    // The native window has told its parent that the user did something: the code of the
    // notification in WM_COMMAND, WM_NOTIFY or WM_HSCROLL.
    virtual void Notified(UINT) {}
    // The whole notice of a WM_NOTIFY, for the windows that need more than its code. The result is
    // what the native window is answered.
    virtual LRESULT Noticed(const NMHDR& notice) {
        Notified(notice.code);
        return 0;
    }

    // The native window is about to paint; the system's own colours are set.
    virtual void SetColours(HDC) const {}

    void Refresh(toolkit::Aspect what) override;
    void Repaint() override;
    void PaintNow() override;
    bool PointerIsOver() const override;
    void TakeFocus() override;
    void CaptureMouse() override;
    void MoveFocus(bool forward) override;

  protected:
    struct Recipe {
        const wchar_t* windowClass;
        DWORD style = 0;
        DWORD extendedStyle = 0;
    };

    ControlWindow(toolkit::Control& control, const Surroundings& surroundings)
        : surroundings_(surroundings), control_(control) {}

    virtual Recipe Describe() const = 0;
    // What the native window must be told once, before it shows the control's value.
    virtual void Prepare() {}
    virtual void ShowItems() {}
    virtual void ShowValue() {}
    // What a mouse that rests on the control is told; nothing while it is "".
    virtual std::string TipText() const { return control_.ToolTip(); }
    virtual HFONT Font() const { return surroundings_.screen.Plain(); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(window_, message, wParam, lParam);
    }
    // Also when it is in a window inside, as in a combo box's field.
    bool HasFocus() const;
    void Guard(const std::function<void()>& event) const { surroundings_.Guard(event); }

    const Surroundings surroundings_;

  private:
    // Who gets the focus when the native window loses its use. Without a window that has it the
    // keyboard would be dead, so where no other control takes it the form does.
    HWND Heir() const;

    toolkit::Control& control_;
    HWND window_ = nullptr;
    toolkit::Rect area_;
    std::optional<ControlName> name_;
    TipWindow tip_;
};

// Gives the focus to a window, and selects the text of an edit field as a dialog does.
void FocusLikeDialog(HWND window);
// Whether the tabulator stops there now.
bool IsTabStop(HWND window);

// The text of a native window.
std::string TextOf(HWND window);

// Gives an edit field its text unless it has it, and leaves the caret where it is: setting a text
// takes it to the start, where nobody goes on typing.
void ShowText(HWND field, std::string_view text);

}  // namespace platform::win32
