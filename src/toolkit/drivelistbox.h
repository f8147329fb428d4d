#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/combobox.h"

namespace toolkit {

// A list of drives to choose one from. An entry begins with the drive's letter and a colon, behind
// which its label may stand: "c: [SYSTEM]", "a:". Nothing is selected at first.
class DriveListBox final : public ComboBox {
  public:
    DriveListBox(Form& form, std::string name);

    // The selected drive stays selected if it is among the new entries, and otherwise none is.
    // Raises Change when its text is another one than before.
    void SetDrives(std::vector<std::string> entries);

    // The entry at that index, counted from 0; "" where there is none.
    std::string Entry(int index) const;

    // The selected entry, as a whole.
    const std::string& Drive() const { return Text(); }
    // Only the first character counts, its case does not: "C:\" selects "c: [SYSTEM]". Throws
    // Failure DeviceUnavailable when no entry begins with it. Raises Change when the drive changes.
    void SetDrive(std::string_view drive);

    // The user has scrolled the list that has dropped down.
    void ScrollList();

    // Beside onChange, which tells that another drive is selected. onClick is taken.
    Handler onScroll;

  private:
    int IndexOf(std::string_view drive) const;

    bool filling_ = false;
};

}  // namespace toolkit
