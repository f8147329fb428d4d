#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/control.h"

// The standard controls. Each has the handlers of its events as public members; an empty one means
// that nobody listens. A failure that a handler throws passes to whoever changed the control.
namespace toolkit {

using Handler = std::function<void()>;

// Gets each character that is typed, before it reaches the control's text, as one unit of UTF-16;
// Backspace is 8. Setting it to 0 swallows it, another value takes its place. Pasted text and the
// keys of the clipboard (copy, cut, paste, undo, select all) are no typing and pass unasked.
using KeyHandler = std::function<void(char16_t& character)>;

// A path takes one line, as wide as the layout makes it; where it does not fit, its middle is left
// out of the picture. An ampersand in it is nothing but one. A link is for the keyboard, too: Space
// and Return click it. Of links made one after the other the tabulator reaches the first, the arrow
// keys the rest.
enum class LabelStyle { Plain, Heading, Path, Link };

// A colour as the platform writes it: red in the lowest byte, then green, then blue.
using Colour = std::uint32_t;
inline constexpr Colour Black = 0;
inline constexpr Colour Red = 255;

// Text on the form; line ends in the caption (CR LF) are shown as such. A label that is to hear the
// mouse needs its handlers before the form is loaded; without any, what lies behind it hears it.
class Label : public Control {
  public:
    Label(Form& form, std::string name, std::string caption, LabelStyle style = LabelStyle::Plain);

    LabelStyle Style() const { return style_; }

    // The system's own colour while there is none.
    std::optional<Colour> TextColour() const { return textColour_; }
    void SetTextColour(Colour colour);

    // What the user's click does. A disabled label hears nothing.
    void Click();
    // The mouse has moved over the label.
    void MouseMoved();

    Handler onClick;
    Handler onMouseMove;

  private:
    LabelStyle style_;
    std::optional<Colour> textColour_;
};

// A group box: a caption and a line around the controls that the layout puts into it. For its
// handler the same holds as for a label's, and for its tip.
class Frame : public Control {
  public:
    Frame(Form& form, std::string name, std::string caption);

    // The mouse has moved over the frame, beside the controls in it.
    void MouseMoved();

    Handler onMouseMove;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, std::string caption);

    // 0 off, 1 on, 2 grey; any other throws Failure InvalidPropertyValue. A value that stays as it
    // was raises nothing.
    int Value() const { return value_; }
    void SetValue(int value);

    // What the user's click does: the other value.
    void Toggle() { SetValue(value_ == 1 ? 0 : 1); }

    Handler onClick;

  private:
    int value_ = 0;
};

// One choice of a group. Selecting it takes the selection from the others of its group.
class OptionButton : public Control {
  public:
    // `group` is any number shared by the option buttons of one frame and by no other on the form.
    OptionButton(Form& form, std::string name, std::string caption, int group);

    bool Value() const { return value_; }
    void SetValue(bool value);
    int Group() const { return group_; }

    // Raised when the button becomes selected, not when it loses the selection.
    Handler onClick;

  private:
    bool value_ = false;
    int group_;
};

struct TextBoxStyle {
    // Characters that typing may reach; 0 means no limit. Text set by the program is cut too.
    int maxLength = 0;
    bool multiLine = false;
    bool password = false;
    // The user may mark and copy the text, and no more.
    bool readOnly = false;
    // The distance of the tab stops in average characters; 0 is the platform's own.
    int tabWidth = 0;
    // The width that the layout gives the box, in average characters.
    int columns = 12;
};

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, TextBoxStyle style = {});

    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    const TextBoxStyle& Style() const { return style_; }

    Handler onChange;
    KeyHandler onKeyPress;

  private:
    TextBoxStyle style_;
    std::string text_;
};

struct SliderRange {
    std::int32_t minimum = 0;
    std::int32_t maximum = 10;
    std::int32_t smallStep = 1;
    std::int32_t largeStep = 5;
    std::int32_t tick = 1;
};

class Slider : public Control {
  public:
    Slider(Form& form, std::string name, SliderRange range, std::int32_t value);

    std::int32_t Value() const { return value_; }
    // A value outside the range leaves the slider where it is.
    void SetValue(std::int32_t value);
    const SliderRange& Range() const { return range_; }

    Handler onChange;

  private:
    SliderRange range_;
    std::int32_t value_;
};

// The row of tabs over the pages. Pages are counted from 0.
class TabStrip : public Control {
  public:
    TabStrip(Form& form, std::string name, std::vector<std::string> captions);

    const std::vector<std::string>& Captions() const { return captions_; }
    int Tab() const { return tab_; }
    // Throws Failure InvalidPropertyValue for a number that is no page; the page stays.
    void SetTab(int tab);

    // The user has clicked a tab, whether or not that has turned the page.
    void Click();

    // Another page has come up, or a tab was clicked.
    Handler onClick;

  private:
    std::vector<std::string> captions_;
    int tab_ = 0;
};

}  // namespace toolkit
