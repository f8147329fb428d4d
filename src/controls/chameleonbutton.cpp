#include "controls/chameleonbutton.h"

#include <algorithm>
#include <utility>

#include "controls/propertystore.h"
#include "runtime/failure.h"
#include "runtime/temporarily.h"
#include "toolkit/keys.h"

namespace controls {

using toolkit::MouseButton;

namespace {

constexpr int OverTimerInterval = 3;

template <typename Handler, typename... Facts>
void Raise(const Handler& handler, const Facts&... facts) {
    if (handler) handler(facts...);
}

}  // namespace

chameleonButton::chameleonButton(toolkit::Form& form, std::string name, Persisted properties,
                                 platform::Clock& clock)
    : DrawnControl(form, toolkit::ControlKind::Drawn, std::move(name), "", true), clock_(clock) {
    ReadProperties(PropertyStore(properties.lines));
}

chameleonButton::~chameleonButton() {
    StopWatching();
}

// The colours and the places follow with the next picture; the access key is the window's, by its
// text.
void chameleonButton::ReadProperties(const PropertyStore& store) {
    {
        // What is read is nobody's change.
        const runtime::Temporarily reading(reading_, true);
        properties_ = ReadButtonProperties(store);
        SetEnabled(properties_.enabled);
        SetCaption(properties_.caption);
    }
    colours_.reset();
    places_.reset();
    ShapeChanged();
    Redraw(state_, true);
}

toolkit::Size chameleonButton::NaturalSize(toolkit::Size text) const {
    // Of the dialogs' font at 96 dots per inch; the sizes below grow with it.
    constexpr int FontHeight = 13;
    const int fontHeight = std::max(text.height, FontHeight);
    const auto scaled = [&](int pixels) { return pixels * fontHeight / FontHeight; };
    const int contents = text.width + WidthBesideCaption(properties_);
    return {std::max(contents + scaled(20), scaled(75)), scaled(23)};
}

// While the mouse is over a button of the second scheme, its other background takes the place of
// the usual one for the length of the drawing.
void chameleonButton::Paint(toolkit::Canvas& canvas, toolkit::Rect client) {
    if (settingUp_) return;
    if (!properties_.font.name.empty()) canvas.UseFont(properties_.font);
    if (client != client_) places_.reset();
    client_ = client;
    const bool swaps = properties_.colorScheme == 2 && state_ == ButtonState::Hovered;
    if (!colours_ || swaps) {
        colours_.emplace(canvas, properties_, swaps ? properties_.backOver : properties_.backColor);
    }
    const WorkingColours colours = *colours_;
    if (swaps) colours_.reset();
    if (!places_) places_ = PlaceContents(canvas, client, properties_);
    DrawButton(canvas, client,
               {.properties = properties_,
                .colours = colours,
                .places = *places_,
                .state = state_,
                .down = state_ == ButtonState::Pressed ||
                        (properties_.checkBoxBehaviour && properties_.value),
                .isDefault = isDefault_,
                .focusRect = hasFocus_ && properties_.showFocusRect});
}

void chameleonButton::Show(toolkit::Rect client) {
    settingUp_ = false;
    client_ = client;
    ShapeChanged();
}

void chameleonButton::Resize(toolkit::Rect client) {
    client_ = client;
    places_.reset();
    ShapeChanged();
    Redraw(state_, true);
}

void chameleonButton::SettingsChanged() {
    colours_.reset();
    places_.reset();
    ShapeChanged();
    Redraw(PointerIsOver() ? state_ : ButtonState::Normal, true);
}

// What happened meanwhile was not drawn, the leaving of the mouse neither.
void chameleonButton::Refresh() {
    settingUp_ = false;
    SettingsChanged();
}

toolkit::Pointer chameleonButton::MousePicture() const {
    if (properties_.handPointer) return {toolkit::Pointer::Hand};
    return {properties_.mousePointer, properties_.mouseIcon.get()};
}

void chameleonButton::Changed(toolkit::Aspect what) {
    DrawnControl::Changed(what);
    if (what == toolkit::Aspect::Caption) {
        properties_.caption = Caption();
        Stored(key::Caption, Concerns::Contents);
    } else if (what == toolkit::Aspect::Enabled) {
        properties_.enabled = Enabled();
        Stored(key::Enabled, Concerns::Picture);
    }
}

void chameleonButton::Stored(const char* key, Concerns what) {
    if (what == Concerns::Colours || what == Concerns::Shape) colours_.reset();
    if (what == Concerns::Contents || what == Concerns::Shape) places_.reset();
    if (what == Concerns::Shape) ShapeChanged();
    if (what != Concerns::Nothing) Redraw(state_, true);
    if (onPropertyChanged && !reading_) onPropertyChanged(key);
}

// A window that never had a shape is not told that it has none, which would cost each start.
void chameleonButton::ShapeChanged() {
    if (settingUp_ || !View()) return;
    const Shape shape = ShapeOf(properties_.buttonType);
    const bool hasShape = shape.corner != Corner::Square;
    if (hasShape || hadShape_) View()->SetRegion(RegionOf(client_, shape));
    hadShape_ = hasShape;
    const bool isTransparent = IsTransparent(properties_.buttonType);
    if (isTransparent || wasTransparent_) View()->KeepBackground(isTransparent);
    wasTransparent_ = isTransparent;
}

// Entering with the button held shows the pressed picture without a MouseOver; that comes with the
// first move after the release, so that each MouseOver still has its MouseOut.
void chameleonButton::MouseMove(toolkit::Mouse mouse) {
    Raise(onMouseMove, mouse);
    if (!PointerIsOver()) {
        Redraw(ButtonState::Normal);
    } else if (mouse.button == MouseButton::None && overTimer_ == NoTimer) {
        // Without a timer nobody would tell the leaving. The next move tries again.
        if (!runtime::Skip([this] { WatchPointer(); })) return;
        Redraw(ButtonState::Hovered);
        Raise(onMouseOver);
    } else if (mouse.button == MouseButton::Left) {
        Redraw(ButtonState::Pressed);
    }
}

void chameleonButton::MouseDown(toolkit::Mouse mouse) {
    Raise(onMouseDown, mouse);
    leftPress_ = mouse.button == MouseButton::Left;
    if (mouse.button == MouseButton::Right) return;
    CaptureMouse();
    Redraw(ButtonState::Pressed);
}

// A release outside shows the hovered picture too, on purpose: the look of a button depends on the
// button released, and its click alone on where the mouse is.
void chameleonButton::MouseUp(toolkit::Mouse mouse) {
    Raise(onMouseUp, mouse);
    if (mouse.button == MouseButton::Right) return;
    Redraw(ButtonState::Hovered);
    if (mouse.button != MouseButton::Left) return;
    const bool clicked = leftPress_ && PointerIsOver();
    leftPress_ = false;
    if (clicked) Click();
}

void chameleonButton::DoubleClick(toolkit::Mouse mouse) {
    if (mouse.button != MouseButton::Left) return;
    Raise(onDblClick);
    CaptureMouse();
}

void chameleonButton::KeyDown(toolkit::Key key) {
    Raise(onKeyDown, key);
    switch (key.code) {
        case toolkit::key::Space:
            Redraw(ButtonState::Pressed);
            break;
        case toolkit::key::Left:
        case toolkit::key::Up:
            MoveFocus(false);
            break;
        case toolkit::key::Right:
        case toolkit::key::Down:
            MoveFocus(true);
            break;
        default:
            break;
    }
}

void chameleonButton::KeyPress(char16_t character) {
    Raise(onKeyPress, character);
}

void chameleonButton::KeyUp(toolkit::Key key) {
    Raise(onKeyUp, key);
    if (key.code == toolkit::key::Space) Click();
}

// Without the focus the space key's release goes elsewhere, so the button comes up by itself.
void chameleonButton::FocusChanged(bool focused) {
    hasFocus_ = focused;
    // A button that was left with the keyboard while it was held is not to click later.
    if (!focused) leftPress_ = false;
    const bool comesUp = !focused && state_ == ButtonState::Pressed;
    Redraw(comesUp ? ButtonState::Normal : state_, true);
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
    Redraw(ButtonState::Normal);
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
    if (properties_.checkBoxBehaviour) properties_.value = !properties_.value;
    Redraw(PointerIsOver() ? ButtonState::Hovered : ButtonState::Normal, true);
    if (View()) View()->PaintNow();
    Raise(onClick);
}

void chameleonButton::Redraw(ButtonState state, bool force) {
    if (settingUp_ || (state == state_ && !force)) return;
    state_ = state;
    if (View()) View()->Repaint();
}

}  // namespace controls
