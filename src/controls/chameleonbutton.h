#pragma once

#include "platform/clock.h"
#include "toolkit/controls.h"
#include "toolkit/drawncontrol.h"

namespace controls {

// The picture that a button shows.
enum class DrawState { Normal = 0, Hovered = 1, Pressed = 2 };

// The program's own push button. It draws itself, watches the mouse over it, and can keep a pressed
// state like a check box.
class chameleonButton final : public toolkit::DrawnControl {
  public:
    chameleonButton(toolkit::Form& form, std::string name, std::string caption,
                    platform::Clock& clock);
    ~chameleonButton() override;

    // Whether the focus is shown by a dotted rectangle; it is by default.
    bool ShowFocusRect() const { return showFocusRect_; }
    void SetShowFocusRect(bool shown);

    // Whether a click flips Value, which the button then shows by staying down.
    bool CheckBoxBehaviour() const { return checkBoxBehaviour_; }
    void SetCheckBoxBehaviour(bool on);

    bool Value() const { return value_; }
    void SetValue(bool value);

    DrawState State() const { return state_; }

    toolkit::Handler onClick;
    // After the click of the first press; the second press of a double click causes no click.
    toolkit::Handler onDblClick;
    // Once for each entering of the mouse, and once for each leaving.
    toolkit::Handler onMouseOver;
    toolkit::Handler onMouseOut;

    const char* WindowClass() const override { return "chameleonButton"; }
    // 75 by 23 pixels at 96 dots per inch, wider for a long caption.
    toolkit::Size NaturalSize(toolkit::Size text) const override;
    void Paint(toolkit::Canvas& canvas, toolkit::Rect client) override;

    void MouseMove(toolkit::MouseButton held) override;
    void MouseDown(toolkit::MouseButton button) override;
    void MouseUp(toolkit::MouseButton button) override;
    void DoubleClick(toolkit::MouseButton button) override;
    void KeyDown(int virtualKey) override;
    void KeyUp(int virtualKey) override;
    void FocusChanged(bool focused) override;
    void Press() override { Click(); }
    void MarkDefault(bool marked) override;

  private:
    bool PointerIsOver() const { return View() && View()->PointerIsOver(); }
    void WatchPointer();
    void StopWatching();
    void OverTimerTick();
    void CaptureMouse();
    void MoveFocus(bool forward);
    void Click();
    void Redraw(DrawState state, bool force = false);

    static constexpr platform::Clock::Timer NoTimer = 0;

    platform::Clock& clock_;
    // Runs from the entering of the mouse to its leaving.
    platform::Clock::Timer overTimer_ = NoTimer;
    DrawState state_ = DrawState::Normal;
    // The last press, not yet released, came from the left button.
    bool leftPress_ = false;
    bool hasFocus_ = false;
    bool isDefault_ = false;
    bool showFocusRect_ = true;
    bool checkBoxBehaviour_ = false;
    bool value_ = false;
};

}  // namespace controls
