#include "tweaks/pageparts.h"

#include "controls/chameleonbutton.h"
#include "toolkit/form.h"

namespace tweaks {

using toolkit::Box;
using toolkit::Form;

namespace {

// Wide enough for the widest left caption of all pages.
constexpr int LeftOfPair = 290;

}  // namespace

Box CheckBoxOn(Form& form, Named box) {
    return Leaf(form.Add<toolkit::CheckBox>(box.name, box.caption));
}

Box LabelOn(Form& form, Named label) {
    return Leaf(form.Add<toolkit::Label>(label.name, label.caption));
}

Box TextBoxOn(Form& form, const char* name, toolkit::TextBoxStyle style) {
    return Leaf(form.Add<toolkit::TextBox>(name, style));
}

Box ComboBoxOn(Form& form, const char* name, toolkit::ComboBoxStyle style) {
    return Leaf(form.Add<toolkit::ComboBox>(name, style));
}

Box CheckBoxPair(Form& form, Named left, Named right) {
    Box first = AtLeast(CheckBoxOn(form, left), LeftOfPair, 0);
    Box second = Stretch(CheckBoxOn(form, right));
    return Gap(toolkit::Row({first, second}), 16);
}

Box CheckBoxColumn(Form& form, std::initializer_list<Named> boxes) {
    std::vector<Box> rows;
    for (const Named& box : boxes) rows.push_back(CheckBoxOn(form, box));
    return Gap(toolkit::Column(std::move(rows)), 3);
}

Box CheckBoxGroup(Form& form, Named frame, std::initializer_list<Named> boxes) {
    auto& group = form.Add<toolkit::Frame>(frame.name, frame.caption);
    return InFrame(group, CheckBoxColumn(form, boxes));
}

Box ButtonsOfPage(Form& form, platform::Clock& clock, std::initializer_list<StoredButton> buttons) {
    std::vector<Box> row;
    row.push_back(toolkit::Filler());
    for (const StoredButton& button : buttons) {
        row.push_back(Leaf(form.Add<controls::chameleonButton>(
            button.name, controls::Persisted{button.properties}, clock)));
    }
    return Gap(toolkit::Row(std::move(row)), 8);
}

}  // namespace tweaks
