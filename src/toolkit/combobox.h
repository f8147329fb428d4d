#pragma once

#include <string>
#include <vector>

#include "toolkit/controls.h"

namespace toolkit {

struct ComboBoxStyle {
    // Only what stands in the list can be chosen; otherwise any text can be typed beside it.
    bool listOnly = false;
    // Characters that typing may reach; 0 means no limit. Text set by the program is cut too.
    int maxLength = 0;
    // The width that the layout gives the box, in average characters.
    int columns = 8;
};

// A field with a list that drops down from it.
//
// An item is selected by its index, and its text is then the box's text: that raises Click and no
// Change, whether the user picks it or the program sets ListIndex. A text that is typed or set
// stands beside the list even when it equals an item: ListIndex becomes -1, and Change is raised
// when the text differs from the one before. Whatever stays as it was raises nothing: the same
// text again, the selected item again.
class ComboBox : public Control {
  public:
    static constexpr int NoSelection = -1;

    ComboBox(Form& form, std::string name, ComboBoxStyle style = {});

    const ComboBoxStyle& Style() const { return style_; }

    const std::vector<std::string>& Items() const { return items_; }
    // Behind the others. Raises nothing.
    void AddItem(std::string item);
    // Takes the list, the selection and the text away. Raises Change when there was a text to lose,
    // but nothing with `listOnly`.
    void Clear();

    const std::string& Text() const { return text_; }
    // With `listOnly` this selects the first item of exactly that text, as SetListIndex does; a
    // text that is no item throws Failure InvalidPropertyValue and changes nothing.
    void SetText(std::string text);

    // The selected item, counted from 0, or NoSelection.
    int ListIndex() const { return listIndex_; }
    // NoSelection takes the selection and the text away and raises Click as any other change of the
    // selection does. Throws Failure InvalidPropertyValue for an index that is no item.
    void SetListIndex(int index);

    Handler onChange;
    Handler onClick;
    KeyHandler onKeyPress;

  protected:
    ComboBox(Form& form, ControlKind kind, std::string name, ComboBoxStyle style);

  private:
    ComboBoxStyle style_;
    std::vector<std::string> items_;
    std::string text_;
    int listIndex_ = NoSelection;
};

}  // namespace toolkit
