#pragma once

#include <vector>

#include "toolkit/geometry.h"

namespace toolkit {

// What of a control has changed, for the window that shows it.
enum class Aspect { Value, Items, Caption, Enabled, Visible, Limits, TextColour, ToolTip };

// One piece of a window's outline, in its own pixels; all pieces together are the outline.
struct RegionPart {
    Rect area;
    bool isEllipse = false;
};
using Region = std::vector<RegionPart>;

// What the platform puts behind a control: a native window that shows what the control holds.
// It never holds state of its own; it reports what the user did by calling the control.
class ControlView {
  public:
    virtual ~ControlView() = default;

    // The control's `what` has changed; show it.
    virtual void Refresh(Aspect what) = 0;

    // Draw the control anew, soon.
    virtual void Repaint() = 0;

    // Draw what is still to be drawn before anything else happens.
    virtual void PaintNow() {}

    // Whether the mouse stands over this very control: cursor position, then window from point.
    virtual bool PointerIsOver() const = 0;

    virtual void TakeFocus() = 0;

    // Keep the mouse input on this control until the button goes up.
    virtual void CaptureMouse() = 0;

    // Moves the focus to the next control, or to the previous one.
    virtual void MoveFocus(bool forward) = 0;

    // What only a list view is asked; its contract says what that does.
    virtual void FitColumn(int, bool) {}
    virtual void EnsureVisible(int) {}
    virtual void LockWindow(bool) {}

    // What only a drawn control asks.

    // The window as the platform knows it, nullptr without one.
    virtual void* Handle() const { return nullptr; }
    // The window ends at this outline from now on; an empty one gives it its rectangle back.
    virtual void SetRegion(const Region&) {}
    // Takes a copy of what the parent shows behind the control, for Canvas::Background, or lets it
    // go.
    virtual void KeepBackground(bool) {}
};

}  // namespace toolkit
