#include "toolkit/listbox.h"

namespace toolkit {

ListBox::ListBox(Form& form, std::string name, int columns, int lines)
    : Control(form, ControlKind::ListBox, std::move(name), "", true),
      leastColumns_(columns),
      leastLines_(lines) {}

void ListBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    Changed(Aspect::Items);
}

void ListBox::Clear() {
    if (items_.empty()) return;
    items_.clear();
    Changed(Aspect::Items);
}

}  // namespace toolkit
