#include "toolkit/controls.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "toolkit/form.h"

namespace toolkit {
namespace {

void Raise(const Handler& handler) {
    if (handler) handler();
}

}  // namespace

Label::Label(Form& form, std::string name, std::string caption, LabelStyle style)
    : Control(form, ControlKind::Label, std::move(name), std::move(caption),
              style == LabelStyle::Link),
      style_(style) {}

void Label::SetTextColour(Colour colour) {
    if (colour == textColour_) return;
    textColour_ = colour;
    Changed(Aspect::TextColour);
}

void Label::Click() {
    if (Enabled()) Raise(onClick);
}

void Label::MouseMoved() {
    if (Enabled()) Raise(onMouseMove);
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::Frame, std::move(name), std::move(caption), false) {}

void Frame::MouseMoved() {
    if (Enabled()) Raise(onMouseMove);
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::CheckBox, std::move(name), std::move(caption), true) {}

void CheckBox::SetValue(int value) {
    if (value < 0 || value > 2) throw runtime::Failure(runtime::InvalidPropertyValue);
    if (value == value_) return;
    value_ = value;
    Changed(Aspect::Value);
    Raise(onClick);
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, int group)
    : Control(form, ControlKind::OptionButton, std::move(name), std::move(caption), true),
      group_(group) {}

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    Changed(Aspect::Value);
    if (!value) return;
    for (const auto& control : Owner().Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control.get());
        if (other && other != this && other->group_ == group_) other->SetValue(false);
    }
    Raise(onClick);
}

TextBox::TextBox(Form& form, std::string name, TextBoxStyle style)
    : Control(form, ControlKind::TextBox, std::move(name), "", true), style_(style) {}

void TextBox::SetText(std::string text) {
    if (style_.maxLength > 0) {
        text = runtime::Left(text, static_cast<std::size_t>(style_.maxLength));
    }
    if (text == text_) return;
    text_ = std::move(text);
    Changed(Aspect::Value);
    Raise(onChange);
}

Slider::Slider(Form& form, std::string name, SliderRange range, std::int32_t value)
    : Control(form, ControlKind::Slider, std::move(name), "", true),
      range_(range),
      value_(std::clamp(value, range.minimum, range.maximum)) {}

void Slider::SetValue(std::int32_t value) {
    if (value == value_ || value < range_.minimum || value > range_.maximum) return;
    value_ = value;
    Changed(Aspect::Value);
    Raise(onChange);
}

TabStrip::TabStrip(Form& form, std::string name, std::vector<std::string> captions)
    : Control(form, ControlKind::TabStrip, std::move(name), "", true),
      captions_(std::move(captions)) {}

void TabStrip::SetTab(int tab) {
    if (tab < 0 || tab >= static_cast<int>(captions_.size())) {
        throw runtime::Failure(runtime::InvalidPropertyValue);
    }
    if (tab == tab_) return;
    tab_ = tab;
    Changed(Aspect::Value);
    Raise(onClick);
}

void TabStrip::Click() {
    Raise(onClick);
}

}  // namespace toolkit
