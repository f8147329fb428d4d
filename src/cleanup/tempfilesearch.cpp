#include "cleanup/tempfilesearch.h"

#include <algorithm>
#include <limits>

#include "cleanup/folderobjects.h"
#include "cleanup/knownlinks.h"
#include "cleanup/tempfilesframe.h"
#include "platform/locale.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "runtime/text.h"
#include "toolkit/listhelpers.h"
#include "utilities/systemdirectorypaths.h"
#include "utilities/systemfacts.h"

namespace cleanup {

namespace {

constexpr int RecentFolder = 8;  // CSIDL_RECENT

// A folder that is not there is passed over, and the next statement runs.
template <typename Statement>
void SkipMissing(Statement statement) {
    try {
        statement();
    } catch (const runtime::Failure& failure) {
        if (failure.number != runtime::PathNotFound) throw;
    }
}

// The root of the drive that an entry of the drive list begins with.
std::string RootOf(std::string_view entry) {
    return runtime::Left(entry, 2) + '\\';
}

}  // namespace

void TempFileSearch::Click() {
    if (frame_.cmdSearchTempFiles.Caption() == "Stop") {
        walk_.Stop();
        frame_.cmdSearchTempFiles.SetCaption("Suchen");
        // The walk enables it again, as soon as it has noticed.
        frame_.cmdSearchTempFiles.SetEnabled(false);
        return;
    }
    std::int32_t total = 0;
    try {
        Begin();
        Collect();
        if (frame_.lvwFiles.Count() > 0) frame_.cmdCleanTempFiles.SetEnabled(true);
        AddSizes(total);
    } catch (const runtime::Failure& failure) {
        machine_.messages.Show(failure.description, platform::message::Critical,
                               "Fehler " + std::to_string(failure.number));
    }
    End(total);
}

void TempFileSearch::Begin() {
    frame_.InitFilesView();
    links_.Clear();
    walk_.Begin();
    frame_.cmdCleanTempFiles.SetEnabled(false);
    frame_.lblHinweisTemp.SetVisible(true);
    frame_.cmdSearchTempFiles.SetCaption("Stop");
    frame_.lvwFiles.LockWindow();
}

void TempFileSearch::Collect() {
    if (frame_.chkRecentDocFolder.Value() == 1) {
        SkipMissing(
            [&] { Scan(utilities::GetSpecialFolderPath(machine_.shell, RecentFolder), true); });
    }
    if (frame_.chkCleanUserTempFolder.Value() == 1) {
        const std::string path = utilities::GetTempDirectory(machine_.facts);
        SkipMissing([&] { Scan(path, true); });
        AddSubFolderRows(path);
    }
    // Always, whatever is ticked: these folders lie on the system's drive.
    const utilities::clsGetSystemDirectoryPaths directories(machine_.facts);
    const std::string windows = directories.WindowsDirectory();
    // Without it the path would name a folder of whatever drive is the current one.
    if (!windows.empty()) AddSubFolderRows(windows + "\\Temp");
    runtime::Skip([&] { ScanDrives(); });
}

void TempFileSearch::ScanDrives() {
    if (frame_.chkScanAll.Value() != 1) {
        if (frame_.Drive().empty()) return;
        Scan(RootOf(frame_.Drive()), false);
        return;
    }
    const std::vector<platform::Drive> drives = machine_.information.Drives();
    for (const std::string& entry : frame_.drvSelect.Items()) {
        const std::string root = RootOf(entry);
        const bool isHardDisk = std::any_of(drives.begin(), drives.end(), [&](const auto& drive) {
            return drive.kind == platform::DriveKind::Fixed &&
                   runtime::EqualsIgnoringCase(drive.root, root);
        });
        if (isHardDisk) runtime::Skip([&] { Scan(root, false); });
    }
}

void TempFileSearch::Scan(const std::string& path, bool addAll) {
    const Folder folder = GetFolder(machine_.folders, path);
    links_.Add(machine_.folders, folder.path);
    walk_.ScanFolder(folder, addAll);
}

void TempFileSearch::AddSubFolderRows(const std::string& path) {
    std::vector<Folder> found;
    SkipMissing([&] {
        const Folder folder = GetFolder(machine_.folders, path);
        links_.Add(machine_.folders, folder.path);
        found = SubFolders(machine_.folders, folder.path);
    });
    for (const Folder& folder : found) {
        SkipMissing([&] {
            walk_.AddFileRow(folder.path, SizeOf(machine_.folders, folder.path),
                             machine_.shell.TypeName(folder.path, folder.attributes),
                             folder.modified, folder.attributes);
        });
    }
}

void TempFileSearch::AddSizes(std::int32_t& total) const {
    const runtime::NumberSigns signs = machine_.locale.Signs();
    for (int row = 0; row < frame_.lvwFiles.Count(); ++row) {
        const std::int32_t size =
            runtime::ToWholeNumber(frame_.lvwFiles.Text(row, column::Size), signs);
        if (size > std::numeric_limits<std::int32_t>::max() - total) {
            throw runtime::Failure(runtime::Overflow);
        }
        total += size;
    }
}

void TempFileSearch::End(std::int32_t total) {
    frame_.lvwFiles.UnlockWindow();
    toolkit::AdjustColumnWidth(frame_.lvwFiles, true, 1);
    frame_.lblScannedFiles.SetCaption("Suchvorgang abgeschlossen!");
    const int rows = frame_.lvwFiles.Count();
    frame_.lblHinweisTemp.SetCaption(
        rows == 0 ? "Keine Tempdateien gefunden!"
                  : std::to_string(rows) + " Tempdateien belegen " + std::to_string(total) +
                        " Bytes - Gescannt: " + std::to_string(walk_.ScannedFiles()) + " Dateien");
    frame_.cmdSearchTempFiles.SetCaption("Suchen");
    walk_.Resume();
}

}  // namespace cleanup
