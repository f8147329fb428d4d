#pragma once

#include "toolkit/canvas.h"
#include "toolkit/control.h"

namespace toolkit {

// By their numbers several can be held at once; what is told is the lowest of them.
enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

// Keys that are held while something else happens, to be added.
inline constexpr int ShiftKey = 1;
inline constexpr int ControlKey = 2;
inline constexpr int AltKey = 4;

// What the mouse does: a button, the one that moves or, in a move, the one that is held; and where,
// in the control's pixels.
struct Mouse {
    // Not explicit, since often only the button matters.
    Mouse(MouseButton which, Point where = {}, int held = 0)
        : button(which), at(where), shift(held) {}

    MouseButton button;
    Point at;
    int shift;
};

// A virtual-key code of the platform.
struct Key {
    Key(int which, int held = 0) : code(which), shift(held) {}

    int code;
    int shift;
};

// The picture of the mouse over a control: a pointer code, 0 for that of the surroundings and 99
// for the picture.
struct Pointer {
    static constexpr int Own = 99;
    static constexpr int Hand = 100;

    int code = 0;
    const Picture* picture = nullptr;
};

// A control that draws itself and handles its own mouse and keys. The platform gives it a bare
// window and passes on what happens there.
class DrawnControl : public Control {
  public:
    // The window class under which scripts from outside see the control.
    virtual const char* WindowClass() const = 0;
    // The size that the layout gives the control; `text` is the size of its caption.
    virtual Size NaturalSize(Size text) const = 0;
    virtual void Paint(Canvas& canvas, Rect client) = 0;
    // False while Paint would draw nothing; what is on the screen then stays there.
    virtual bool IsReady() const { return true; }

    // The window is there, with this client area, and will be seen.
    virtual void Show(Rect) {}
    virtual void Resize(Rect) {}
    // The user has changed the system's colours or fonts.
    virtual void SettingsChanged() {}
    virtual Pointer MousePicture() const { return {}; }

    virtual void MouseMove(Mouse) {}
    virtual void MouseDown(Mouse) {}
    virtual void MouseUp(Mouse) {}
    virtual void DoubleClick(Mouse) {}
    virtual void KeyDown(Key) {}
    // A typed character, as one unit of UTF-16.
    virtual void KeyPress(char16_t) {}
    virtual void KeyUp(Key) {}
    virtual void FocusChanged(bool) {}
    // What a script's BM_CLICK, the access key or the form's Return or Escape does.
    virtual void Press() {}
    // The button that Return presses wears a stronger edge.
    virtual void MarkDefault(bool) {}

  protected:
    using Control::Control;
};

}  // namespace toolkit
