#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "toolkit/control.h"

// The standard controls. Each has the handlers of its events as public members; an empty one means
// that nobody listens. A failure that a handler throws passes to whoever changed the control.
namespace toolkit {

using Handler = std::function<void()>;

enum class LabelStyle { Plain, Heading };

// Text on the form; line ends in the caption (CR LF) are shown as such.
class Label : public Control {
  public:
    Label(Form& form, std::string name, std::string caption, LabelStyle style = LabelStyle::Plain);

    LabelStyle Style() const { return style_; }

  private:
    LabelStyle style_;
};

// A group box: a caption and a line around the controls that the layout puts into it.
class Frame : public Control {
  public:
    Frame(Form& form, std::string name, std::string caption);
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
    // `group` is any number shared by the option buttons of one frame.
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
    // A value outside the range is taken to its nearer end.
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

    Handler onClick;

  private:
    std::vector<std::string> captions_;
    int tab_ = 0;
};

}  // namespace toolkit
