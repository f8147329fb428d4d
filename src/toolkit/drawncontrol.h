#pragma once

#include "toolkit/canvas.h"
#include "toolkit/control.h"

namespace toolkit {

enum class MouseButton { None = 0, Left = 1, Right = 2 };

// A control that draws itself and handles its own mouse and keys. The platform gives it a bare
// window and passes on what happens there.
class DrawnControl : public Control {
  public:
    // The window class under which scripts from outside see the control.
    virtual const char* WindowClass() const = 0;
    // The size that the layout gives the control; `text` is the size of its caption.
    virtual Size NaturalSize(Size text) const = 0;
    virtual void Paint(Canvas& canvas, Rect client) = 0;

    virtual void MouseMove(MouseButton) {}
    virtual void MouseDown(MouseButton) {}
    virtual void MouseUp(MouseButton) {}
    virtual void DoubleClick(MouseButton) {}
    // A virtual-key code of the platform.
    virtual void KeyDown(int) {}
    virtual void KeyUp(int) {}
    virtual void FocusChanged(bool) {}
    // What a script's BM_CLICK, the access key or the form's Return or Escape does.
    virtual void Press() {}
    // The button that Return presses wears a stronger edge.
    virtual void MarkDefault(bool) {}

  protected:
    using Control::Control;
};

}  // namespace toolkit
