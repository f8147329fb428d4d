#include "toolkit/drivelistbox.h"

#include "runtime/failure.h"
#include "runtime/text.h"

namespace toolkit {
namespace {

constexpr ComboBoxStyle Plain{.listOnly = true, .maxLength = 0, .columns = 20};

}  // namespace

DriveListBox::DriveListBox(Form& form, std::string name)
    : ComboBox(form, ControlKind::DriveListBox, std::move(name), Plain) {
    onClick = [this] {
        if (!filling_ && onChange) onChange();
    };
}

void DriveListBox::SetDrives(std::vector<std::string> entries) {
    const std::string before = Drive();
    filling_ = true;
    Clear();
    for (std::string& entry : entries) AddItem(std::move(entry));
    const int index = IndexOf(before);
    if (index != NoSelection) SetListIndex(index);
    filling_ = false;
    if (Drive() != before && onChange) onChange();
}

std::string DriveListBox::Entry(int index) const {
    const bool exists = index >= 0 && index < static_cast<int>(Items().size());
    return exists ? Items()[static_cast<std::size_t>(index)] : "";
}

void DriveListBox::SetDrive(std::string_view drive) {
    const int index = IndexOf(drive);
    if (index == NoSelection) throw runtime::Failure(runtime::DeviceUnavailable);
    SetListIndex(index);
}

int DriveListBox::IndexOf(std::string_view drive) const {
    for (int index = 0; !drive.empty() && index < static_cast<int>(Items().size()); ++index) {
        if (runtime::EqualsIgnoringCase(Entry(index).substr(0, 1), drive.substr(0, 1))) {
            return index;
        }
    }
    return NoSelection;
}

void DriveListBox::ScrollList() {
    if (Enabled() && onScroll) onScroll();
}

}  // namespace toolkit
