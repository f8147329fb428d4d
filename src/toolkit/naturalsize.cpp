#include "toolkit/naturalsize.h"

#include <algorithm>
#include <string_view>

#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/drawncontrol.h"
#include "toolkit/layout.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"

namespace toolkit {
namespace {

// Pixels at 96 dots per inch, as the platform draws its standard controls.
constexpr int CheckMark = 13;
constexpr int CheckMarkGap = 6;
constexpr int FocusLine = 1;
constexpr int TextBoxEdges = 8;
constexpr int DropDownButton = 17;
constexpr int LinesOfMultiLine = 3;
constexpr Size SliderSize{120, 28};
constexpr int FrameCaptionEdges = 18;
constexpr int TabEdges = 16;
constexpr int TabStripEdges = 10;
constexpr Size ProgressBarSize{120, 16};
constexpr int ListEdges = 4;
constexpr int ScrollBar = 17;
// What a row and a header are higher than their text.
constexpr int RowEdges = 2;
constexpr int HeaderEdges = 6;

Size OfLabel(const Label& label, const TextMeasure& measure) {
    if (label.Style() == LabelStyle::Path) return {0, LineHeight(measure)};
    const bool bold = label.Style() == LabelStyle::Heading;
    constexpr std::string_view lineEnd = "\r\n";
    std::string_view rest = label.Caption();
    Size size;
    for (;;) {
        const std::size_t end = rest.find(lineEnd);
        const Size line = measure.SizeOf(rest.substr(0, end), bold);
        size.width = std::max(size.width, line.width);
        size.height += std::max(line.height, LineHeight(measure));
        if (end == std::string_view::npos) return size;
        rest.remove_prefix(end + lineEnd.size());
    }
}

Size OfCheckMarkAndText(const Control& control, const TextMeasure& measure) {
    const int mark = measure.Scale(CheckMark);
    const Size text = measure.SizeOf(control.Caption(), false);
    return {mark + measure.Scale(CheckMarkGap) + text.width,
            std::max({mark, text.height, LineHeight(measure)}) + 2 * measure.Scale(FocusLine)};
}

Size OfTextBox(const TextBox& box, const TextMeasure& measure) {
    const int lines = box.Style().multiLine ? LinesOfMultiLine : 1;
    const int edges = measure.Scale(TextBoxEdges);
    return {box.Style().columns * measure.SizeOf("0", false).width + edges,
            lines * LineHeight(measure) + edges};
}

Size OfComboBox(const ComboBox& box, const TextMeasure& measure) {
    const int edges = measure.Scale(TextBoxEdges);
    return {box.Style().columns * measure.SizeOf("0", false).width + edges +
                measure.Scale(DropDownButton),
            LineHeight(measure) + edges};
}

Size OfListBox(const ListBox& list, const TextMeasure& measure) {
    const int edges = measure.Scale(ListEdges);
    return {
        list.LeastColumns() * measure.SizeOf("0", false).width + edges + measure.Scale(ScrollBar),
        list.LeastLines() * LineHeight(measure) + edges};
}

Size OfListView(const ListView& list, const TextMeasure& measure) {
    const int edges = measure.Scale(ListEdges);
    const int row = LineHeight(measure) + measure.Scale(RowEdges);
    return {
        list.Style().columns * measure.SizeOf("0", false).width + edges + measure.Scale(ScrollBar),
        LineHeight(measure) + measure.Scale(HeaderEdges) + list.Style().lines * row + edges};
}

// Systems differ in the height of no text.
Size OfCaption(const Control& control, const TextMeasure& measure) {
    if (control.Caption().empty()) return {0, LineHeight(measure)};
    return measure.SizeOf(control.Caption(), false);
}

Size OfTabStrip(const TabStrip& tabs, const TextMeasure& measure) {
    Size size{0, LineHeight(measure) + measure.Scale(TabStripEdges)};
    for (const std::string& caption : tabs.Captions()) {
        size.width += measure.SizeOf(caption, false).width + measure.Scale(TabEdges);
    }
    return size;
}

}  // namespace

int LineHeight(const TextMeasure& measure) {
    return measure.SizeOf("0", false).height;
}

Size NaturalSize(const Control& control, const TextMeasure& measure) {
    switch (control.Kind()) {
        case ControlKind::Label:
            return OfLabel(dynamic_cast<const Label&>(control), measure);
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            return OfCheckMarkAndText(control, measure);
        case ControlKind::TextBox:
            return OfTextBox(dynamic_cast<const TextBox&>(control), measure);
        case ControlKind::ComboBox:
        case ControlKind::DriveListBox:
            return OfComboBox(dynamic_cast<const ComboBox&>(control), measure);
        case ControlKind::Frame:
            return {
                measure.SizeOf(control.Caption(), false).width + measure.Scale(FrameCaptionEdges),
                LineHeight(measure)};
        case ControlKind::Slider:
            return {measure.Scale(SliderSize.width), measure.Scale(SliderSize.height)};
        case ControlKind::TabStrip:
            return OfTabStrip(dynamic_cast<const TabStrip&>(control), measure);
        case ControlKind::ListView:
            return OfListView(dynamic_cast<const ListView&>(control), measure);
        case ControlKind::ListBox:
            return OfListBox(dynamic_cast<const ListBox&>(control), measure);
        case ControlKind::ProgressBar:
            return {measure.Scale(ProgressBarSize.width), measure.Scale(ProgressBarSize.height)};
        case ControlKind::Drawn:
            return dynamic_cast<const DrawnControl&>(control).NaturalSize(
                OfCaption(control, measure));
    }
    return {};
}

}  // namespace toolkit
