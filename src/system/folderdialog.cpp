#include "system/folderdialog.h"

#include <cstdint>

#include "platform/shell.h"

namespace sys {
namespace {

using platform::FolderDialog;

// Folders of the file system only, none below a domain, with a line for the status.
constexpr std::uint32_t Flags = 1 | 2 | 4;

}  // namespace

std::string BrowseForFolderPath(platform::Shell& shell, const toolkit::Form& owner,
                                std::string_view title, std::string_view start) {
    const std::string preselected(start);
    const auto answer = [&](FolderDialog& dialog, std::uint32_t message) {
        if (message == FolderDialog::Initialised) {
            dialog.Send(FolderDialog::SetSelection, preselected);
        }
        if (message == FolderDialog::SelectionChanged) {
            const auto path = dialog.SelectedPath();
            if (path) dialog.Send(FolderDialog::SetStatusText, *path);
        }
    };
    return shell.BrowseForFolder(owner, title, Flags, answer);
}

}  // namespace sys
