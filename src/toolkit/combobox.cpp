#include "toolkit/combobox.h"

#include <algorithm>

#include "runtime/failure.h"
#include "runtime/text.h"

namespace toolkit {

ComboBox::ComboBox(Form& form, std::string name, ComboBoxStyle style)
    : ComboBox(form, ControlKind::ComboBox, std::move(name), style) {}

ComboBox::ComboBox(Form& form, ControlKind kind, std::string name, ComboBoxStyle style)
    : Control(form, kind, std::move(name), "", true), style_(style) {}

void ComboBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    Changed(Aspect::Items);
}

void ComboBox::Clear() {
    const bool losesText = !style_.listOnly && !text_.empty();
    items_.clear();
    text_.clear();
    listIndex_ = NoSelection;
    Changed(Aspect::Items);
    Changed(Aspect::Value);
    if (losesText && onChange) onChange();
}

void ComboBox::SetText(std::string text) {
    if (style_.listOnly) {
        const auto item = std::find(items_.begin(), items_.end(), text);
        if (item == items_.end()) throw runtime::Failure(runtime::InvalidPropertyValue);
        SetListIndex(static_cast<int>(item - items_.begin()));
        return;
    }
    if (style_.maxLength > 0) {
        text = runtime::Left(text, static_cast<std::size_t>(style_.maxLength));
    }
    if (text == text_) return;
    text_ = std::move(text);
    listIndex_ = NoSelection;
    Changed(Aspect::Value);
    if (onChange) onChange();
}

void ComboBox::SetListIndex(int index) {
    if (index < NoSelection || index >= static_cast<int>(items_.size())) {
        throw runtime::Failure(runtime::InvalidPropertyValue);
    }
    if (index == listIndex_) return;
    listIndex_ = index;
    text_ = index == NoSelection ? "" : items_[static_cast<std::size_t>(index)];
    Changed(Aspect::Value);
    if (onClick) onClick();
}

}  // namespace toolkit
