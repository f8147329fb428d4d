#include "system/folderdialog.h"

#include <cstdint>

#include "platform/shell.h"

namespace sys {

namespace {

// What the dialog reports.
constexpr std::uint32_t Initialised = 1;
constexpr std::uint32_t SelectionChanged = 2;
// What the dialog is told.
constexpr std::uint32_t SetStatusText = 0x464;
constexpr std::uint32_t SetSelection = 0x466;

// Folders of the file system only, none below a domain, with a line for the status.
constexpr std::uint32_t Flags = 1 | 2 | 4;

}  // namespace

std::string BrowseForFolderPath(platform::Shell& shell, const toolkit::Form& owner,
                                std::string_view title, std::string_view start) {
    const std::string preselected(start);
    return shell.BrowseForFolder(owner, title, Flags,
                                 [&](platform::FolderDialog& dialog, std::uint32_t message) {
                                     if (message == Initialised)
                                         dialog.Send(SetSelection, preselected);
                                     if (message == SelectionChanged) {
                                         const auto path = dialog.SelectedPath();
                                         if (path) dialog.Send(SetStatusText, *path);
                                     }
                                 });
}

}  // namespace sys
