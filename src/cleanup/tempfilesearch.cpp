#include "cleanup/tempfilesearch.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "cleanup/folderobjects.h"
#include "cleanup/knownlinks.h"
#include "cleanup/tempfilesframe.h"
#include "platform/locale.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "runtime/text.h"
#include "system/specialfolders.h"
#include "system/systemdirectorypaths.h"
#include "toolkit/listhelpers.h"

namespace cleanup {
namespace {

constexpr int RecentFolder = 8;  // CSIDL_RECENT

// What a search takes for its time: the list is locked, the button says "Stop", a stop can be asked
// for. All of it is given back, whatever fails.
class Running {
  public:
    Running(TempFilesFrame& frame, FolderWalk& walk) : frame_(frame), walk_(walk) {}
    ~Running() {
        walk_.Resume();
        Try([&] { Unlock(); });
        Try([&] { frame_.cmdSearchTempFiles.SetCaption("Suchen"); });
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    void Start() {
        frame_.cmdSearchTempFiles.SetCaption("Stop");
        locked_ = true;
        frame_.lvwFiles.LockWindow();
    }
    void Unlock() {
        if (std::exchange(locked_, false)) frame_.lvwFiles.UnlockWindow();
    }

  private:
    // Whatever ends the search is on its way already.
    template <typename Statement>
    static void Try(Statement statement) {
        try {
            statement();
        } catch (...) {
        }
    }

    TempFilesFrame& frame_;
    FolderWalk& walk_;
    bool locked_ = false;
};

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
    Running running(frame_, walk_);
    std::int32_t total = 0;
    try {
        Begin();
        running.Start();
        Collect();
        if (frame_.lvwFiles.Count() > 0) frame_.cmdCleanTempFiles.SetEnabled(true);
        AddSizes(total);
    } catch (const runtime::Failure& failure) {
        // A message that cannot be shown keeps nothing from its end.
        runtime::Skip([&] {
            machine_.messages.Show(failure.description, platform::message::Critical,
                                   "Fehler " + std::to_string(failure.number));
        });
    }
    running.Unlock();
    ShowResult(total);
}

void TempFileSearch::Begin() {
    frame_.InitFilesView();
    links_.Clear();
    walk_.Begin();
    frame_.cmdCleanTempFiles.SetEnabled(false);
    frame_.lblHinweisTemp.SetVisible(true);
}

void TempFileSearch::Collect() {
    if (frame_.chkRecentDocFolder.Value() == 1) {
        SkipMissing([&] { Scan(sys::GetSpecialFolderPath(machine_.shell, RecentFolder), true); });
    }
    if (frame_.chkCleanUserTempFolder.Value() == 1) {
        const std::string path = sys::GetTempDirectory(machine_.systemFacts);
        SkipMissing([&] { Scan(path, true); });
        AddSubFolderRows(path);
    }
    // Always, whatever is ticked: these folders lie on the system's drive.
    const sys::clsGetSystemDirectoryPaths directories(machine_.systemFacts);
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
    const std::vector<platform::Drive> drives = machine_.systemInformation.Drives();
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
            const double size = SizeOf(machine_.folders, folder.path);
            const auto now = AsItIsNow(machine_.folders, folder.path,
                                       {"", folder.attributes, 0, folder.modified});
            if (!now) return;
            walk_.AddFileRow(folder.path, size,
                             machine_.shell.TypeName(folder.path, now->attributes), now->modified,
                             now->attributes);
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

void TempFileSearch::ShowResult(std::int32_t total) {
    toolkit::AdjustColumnWidth(frame_.lvwFiles, true, 1);
    // The scanned path is past.
    frame_.lblScannedFiles.SetToolTip("");
    frame_.lblScannedFiles.SetCaption("Suchvorgang abgeschlossen!");
    const int rows = frame_.lvwFiles.Count();
    frame_.lblHinweisTemp.SetCaption(
        rows == 0 ? "Keine Tempdateien gefunden!"
                  : std::to_string(rows) + " Tempdateien belegen " + std::to_string(total) +
                        " Bytes - Gescannt: " + std::to_string(walk_.ScannedFiles()) + " Dateien");
}

}  // namespace cleanup
