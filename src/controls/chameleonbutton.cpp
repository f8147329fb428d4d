#include "controls/chameleonbutton.h"

#include <algorithm>

#include "controls/buttonlook.h"

namespace controls {

using toolkit::MouseButton;

namespace {

constexpr int OverTimerInterval = 3;

constexpr int SpaceKey = 32;
constexpr int LeftKey = 37;
constexpr int UpKey = 38;
constexpr int RightKey = 39;
constexpr int DownKey = 40;

void Raise(const toolkit::Handler& handler) {
    if (handler) handler();
}

}  // namespace

chameleonButton::chameleonButton(toolkit::Form& form, std::string name, std::string caption,
                                 platform::Clock& clock)
    : DrawnControl(form, toolkit::ControlKind::Drawn, std::move(name), std::move(caption), true),
      clock_(clock) {}

chameleonButton::~chameleonButton() {
    StopWatching();
}

void chameleonButton::SetShowFocusRect(bool shown) {
    showFocusRect_ = shown;
    Redraw(state_, true);
}

void chameleonButton::SetCheckBoxBehaviour(bool on) {
    checkBoxBehaviour_ = on;
    Redraw(state_, true);
}

void chameleonButton::SetValue(bool value) {
    value_ = value;
    Redraw(state_, true);
}

toolkit::Size chameleonButton::NaturalSize(toolkit::Size text) const {
    // Of the dialogs' font at 96 dots per inch; the sizes below grow with it.
    constexpr int FontHeight = 13;
    const int fontHeight = std::max(text.height, FontHeight);
    const auto scaled = [&](int pixels) { return pixels * fontHeight / FontHeight; };
    return {std::max(text.width + scaled(20), scaled(75)), scaled(23)};
}

void chameleonButton::Paint(toolkit::Canvas& canvas, toolkit::Rect client) {
    DrawButton(canvas, client,
               {.caption = Caption(),
                .enabled = Enabled(),
                .down = state_ == DrawState::Pressed || (checkBoxBehaviour_ && value_),
                .isDefault = isDefault_,
                .focusRect = hasFocus_ && showFocusRect_});
}

// Entering with the button held shows the pressed picture without a MouseOver; that comes with the
// first move after the release, so that each MouseOver still has its MouseOut.
void chameleonButton::MouseMove(MouseButton held) {
    if (!PointerIsOver()) {
        Redraw(DrawState::Normal);
    } else if (held == MouseButton::None && overTimer_ == NoTimer) {
        WatchPointer();
        Redraw(DrawState::Hovered);
        Raise(onMouseOver);
    } else if (held == MouseButton::Left) {
        Redraw(DrawState::Pressed);
    }
}

void chameleonButton::MouseDown(MouseButton button) {
    leftPress_ = button == MouseButton::Left;
    if (button == MouseButton::Right) return;
    CaptureMouse();
    Redraw(DrawState::Pressed);
}

// A release outside shows the hovered picture too, on purpose: the look of a button depends on the
// button released, and its click alone on where the mouse is.
void chameleonButton::MouseUp(MouseButton button) {
    if (button == MouseButton::Right) return;
    Redraw(DrawState::Hovered);
    const bool clicked = leftPress_ && PointerIsOver();
    leftPress_ = false;
    if (clicked) Click();
}

void chameleonButton::DoubleClick(MouseButton button) {
    if (button != MouseButton::Left) return;
    CaptureMouse();
    Raise(onDblClick);
}

void chameleonButton::KeyDown(int virtualKey) {
    switch (virtualKey) {
        case SpaceKey:
            Redraw(DrawState::Pressed);
            break;
        case LeftKey:
        case UpKey:
            MoveFocus(false);
            break;
        case RightKey:
        case DownKey:
            MoveFocus(true);
            break;
        default:
            break;
    }
}

void chameleonButton::KeyUp(int virtualKey) {
    if (virtualKey == SpaceKey) Click();
}

// Without the focus the space key's release goes elsewhere, so the button comes up by itself.
void chameleonButton::FocusChanged(bool focused) {
    hasFocus_ = focused;
    // A button that was left with the keyboard while it was held is not to click later.
    if (!focused) leftPress_ = false;
    const bool comesUp = !focused && state_ == DrawState::Pressed;
    Redraw(comesUp ? DrawState::Normal : state_, true);
}

void chameleonButton::MarkDefault(bool marked) {
    isDefault_ = marked;
    Redraw(state_, true);
}

void chameleonButton::WatchPointer() {
    overTimer_ = clock_.StartTimer(OverTimerInterval, [this] { OverTimerTick(); });
}

void chameleonButton::StopWatching() {
    if (overTimer_ == NoTimer) return;
    clock_.StopTimer(overTimer_);
    overTimer_ = NoTimer;
}

void chameleonButton::OverTimerTick() {
    if (PointerIsOver()) return;
    StopWatching();
    Redraw(DrawState::Normal);
    Raise(onMouseOut);
}

// Lets the release that follows reach the button wherever the mouse is by then. Whether the mouse
// is over the button is for the timer to watch, with or without the capture.
void chameleonButton::CaptureMouse() {
    if (View()) View()->CaptureMouse();
}

void chameleonButton::MoveFocus(bool forward) {
    if (View()) View()->MoveFocus(forward);
}

void chameleonButton::Click() {
    if (!Enabled()) return;
    if (checkBoxBehaviour_) value_ = !value_;
    Redraw(PointerIsOver() ? DrawState::Hovered : DrawState::Normal, true);
    Raise(onClick);
}

void chameleonButton::Redraw(DrawState state, bool force) {
    if (state == state_ && !force) return;
    state_ = state;
    if (View()) View()->Repaint();
}

}  // namespace controls
