#pragma once

#include <string>
#include <string_view>

#include "controls/chameleonbutton.h"
#include "platform/machine.h"
#include "toolkit/controls.h"
#include "toolkit/drivelistbox.h"
#include "toolkit/layout.h"
#include "toolkit/listview.h"
#include "toolkit/popupmenu.h"

namespace cleanup {

// The columns of lvwFiles.
namespace column {
inline constexpr int Path = 0;
inline constexpr int Size = 1;
inline constexpr int Type = 2;
inline constexpr int Changed = 3;
}  // namespace column

// The controls of the frame "Temporäre Dateien", and what the list does by itself: sorting by a
// click on a header, and the menu that ticks or unticks all rows.
class TempFilesFrame {
  public:
    TempFilesFrame(toolkit::Form& owner, const platform::Machine& machine);
    TempFilesFrame(const TempFilesFrame&) = delete;
    TempFilesFrame& operator=(const TempFilesFrame&) = delete;

    // Takes all rows off the list.
    void InitFilesView();
    void TickAll(bool ticked);
    // Shows what is being done, at once.
    void ShowProgress(std::string_view text);
    // The drive as messages name it.
    const std::string& Drive() const { return drvSelect.Drive(); }

    // The frame with its controls.
    toolkit::Box Layout() const;

    toolkit::Form& form;
    toolkit::Frame& Frame8;
    toolkit::CheckBox& chkScanAll;
    toolkit::CheckBox& chkDeleteThumbs;
    toolkit::CheckBox& chkNullByteFiles;
    toolkit::CheckBox& chkRecentDocFolder;
    toolkit::CheckBox& chkCleanUserTempFolder;
    toolkit::CheckBox& chkMoveToRecycleBin;
    toolkit::DriveListBox& drvSelect;
    toolkit::Label& lblGesamt;
    // Tells what is used, whatever its name says.
    toolkit::Label& lblFreeDriveSpace;
    toolkit::Label& lblHinweisTemp;
    toolkit::ListView& lvwFiles;
    toolkit::Label& lblScannedFiles;
    toolkit::CheckBox& chkCleanRecycleBin;
    controls::chameleonButton& cmdCleanBinDirect;
    controls::chameleonButton& cmdSearchTempFiles;
    controls::chameleonButton& cmdCleanTempFiles;
    toolkit::PopupMenu mnuTempFiles;

  private:
    void OpenMenu();

    platform::Machine machine_;
    // Not reset by a search.
    bool sortDescending_ = false;
};

}  // namespace cleanup
