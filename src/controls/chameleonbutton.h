#pragma once

#include <optional>

#include "controls/buttonlook.h"
#include "controls/buttonproperties.h"
#include "platform/clock.h"
#include "toolkit/controls.h"
#include "toolkit/drawncontrol.h"

namespace controls {

// A button's properties as a form keeps them: one "KEY=text" a line. Those left out have their
// default.
struct Persisted {
    const char* lines;
};

// The program's own push button. It draws itself, watches the mouse over it, and can keep a pressed
// state like a check box.
class chameleonButton final : public toolkit::DrawnControl {
  public:
    using MouseHandler = std::function<void(const toolkit::Mouse&)>;
    using KeyHandler = std::function<void(const toolkit::Key&)>;
    using CharacterHandler = std::function<void(char16_t)>;
    using ChangeHandler = std::function<void(const char* key)>;

    // A button of a form.
    chameleonButton(toolkit::Form& form, std::string name, Persisted properties,
                    platform::Clock& clock);
    // A new button, with its name for a caption.
    chameleonButton(toolkit::Form& form, std::string name, platform::Clock& clock);
    ~chameleonButton() override;

    void ReadProperties(const PropertyStore& store);
    void WriteProperties(PropertyStore& store) const;

    // Each is announced, also when it is set to what it is. Only Caption and Enabled are not
    // announced then: a native window tells back what it has been told.
    const ButtonProperties& Properties() const { return properties_; }
    void SetButtonType(std::int16_t type);
    void SetFont(toolkit::Font font);
    void SetColorScheme(std::int16_t scheme);
    // Whether the focus is shown by a dotted rectangle.
    void SetShowFocusRect(bool shown);
    void SetBackColor(toolkit::Colour colour);
    void SetBackOver(toolkit::Colour colour);
    void SetForeColor(toolkit::Colour colour);
    void SetForeOver(toolkit::Colour colour);
    void SetMaskColor(toolkit::Colour colour);
    void SetMousePointer(std::int16_t code);
    void SetMouseIcon(toolkit::SharedPicture picture);
    void SetPictureNormal(toolkit::SharedPicture picture);
    void SetPictureOver(toolkit::SharedPicture picture);
    void SetUseMaskColor(bool used);
    void SetSoftBevel(bool soft);
    void SetPicturePosition(std::int16_t position);
    void SetNormalGrey(bool grey);
    void SetSpecialEffect(std::int16_t effect);
    void SetHandPointer(bool hand);
    // Whether a click flips Value, which the button then shows by staying down.
    void SetCheckBoxBehaviour(bool on);
    void SetValue(bool value);
    bool Value() const { return properties_.value; }

    // The native window, nullptr while there is none.
    void* hwnd() const { return View() ? View()->Handle() : nullptr; }
    ButtonState State() const { return state_; }
    static const char* Version() { return "2.0.6"; }

    // From here to Refresh the button is not drawn, for a caller that sets much at once.
    void DisableRefresh() { settingUp_ = true; }
    void Refresh();

    toolkit::Handler onClick;
    // After the click of the first press; the second press of a double click causes no click.
    toolkit::Handler onDblClick;
    // Once for each entering of the mouse, and once for each leaving.
    toolkit::Handler onMouseOver;
    toolkit::Handler onMouseOut;
    // Before the button does anything about it.
    MouseHandler onMouseDown;
    MouseHandler onMouseMove;
    MouseHandler onMouseUp;
    KeyHandler onKeyDown;
    KeyHandler onKeyUp;
    CharacterHandler onKeyPress;
    // A property has been set; gets its key.
    ChangeHandler onPropertyChanged;

    const char* WindowClass() const override { return "chameleonButton"; }
    // 75 by 23 pixels at 96 dots per inch, wider for a long caption.
    toolkit::Size NaturalSize(toolkit::Size text) const override;
    void Paint(toolkit::Canvas& canvas, toolkit::Rect client) override;
    bool IsReady() const override { return !settingUp_; }
    void Show(toolkit::Rect client) override;
    void Resize(toolkit::Rect client) override;
    void SettingsChanged() override;
    toolkit::Pointer MousePicture() const override;

    void MouseMove(toolkit::Mouse mouse) override;
    void MouseDown(toolkit::Mouse mouse) override;
    void MouseUp(toolkit::Mouse mouse) override;
    void DoubleClick(toolkit::Mouse mouse) override;
    void KeyDown(toolkit::Key key) override;
    void KeyPress(char16_t character) override;
    void KeyUp(toolkit::Key key) override;
    void FocusChanged(bool focused) override;
    void Press() override { Click(); }
    void MarkDefault(bool marked) override;

  private:
    // What a property bears upon, beside what is drawn.
    enum class Concerns { Nothing, Picture, Colours, Contents, Shape };

    void Changed(toolkit::Aspect what) override;
    void Stored(const char* key, Concerns what);
    void ShapeChanged();
    bool PointerIsOver() const { return View() && View()->PointerIsOver(); }
    void WatchPointer();
    void StopWatching();
    void OverTimerTick();
    void CaptureMouse();
    void MoveFocus(bool forward);
    void Click();
    void Redraw(ButtonState state, bool force = false);

    static constexpr platform::Clock::Timer NoTimer = 0;

    platform::Clock& clock_;
    ButtonProperties properties_;
    // Both are calculated for the next picture when something has changed that they depend on.
    std::optional<WorkingColours> colours_;
    std::optional<Places> places_;
    toolkit::Rect client_;
    // Runs from the entering of the mouse to its leaving.
    platform::Clock::Timer overTimer_ = NoTimer;
    ButtonState state_ = ButtonState::Normal;
    // Nothing is drawn and no region set before the window is there.
    bool settingUp_ = true;
    // While it is up, nothing that is set is announced.
    bool reading_ = false;
    // The last press, not yet released, came from the left button.
    bool leftPress_ = false;
    bool hasFocus_ = false;
    bool isDefault_ = false;
    // What the window was told last.
    bool hadShape_ = false;
    bool wasTransparent_ = false;
};

}  // namespace controls
