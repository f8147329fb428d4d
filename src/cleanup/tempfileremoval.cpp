#include "cleanup/tempfileremoval.h"

#include <vector>

#include "cleanup/deletefolder.h"
#include "cleanup/drivespacelabels.h"
#include "cleanup/pathnames.h"
#include "cleanup/recyclebin.h"
#include "cleanup/tempfilesframe.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "runtime/failure.h"
#include "toolkit/form.h"
#include "utilities/modshellkill.h"

namespace cleanup {

using runtime::Skip;

namespace {

constexpr auto Title = "Tempdateien löschen";

struct Row {
    std::string path;
    bool ticked = false;
    bool isFolder = false;
};

// As they were when the user confirmed: the shell's own questions let events through, and a search
// started meanwhile must not bring in rows that nobody has confirmed.
std::vector<Row> RowsOf(const toolkit::ListView& list) {
    std::vector<Row> rows;
    for (int row = 0; row < list.Count(); ++row) {
        // The one word on purpose: elsewhere, where the shell has another one, folders stay.
        rows.push_back(
            {list.Text(row), list.Ticked(row), list.Text(row, column::Type) == "Dateiordner"});
    }
    return rows;
}

}  // namespace

void TempFileRemoval::Click() {
    if (!AnyTicked()) {
        Skip([&] {
            machine_.messages.Show("Keine Tempdateien zum löschen ausgewählt.",
                                   platform::message::Exclamation, Title);
        });
        return;
    }
    if (!Confirmed()) return;
    const toolkit::ScreenHourglass hourglass{machine_.forms};
    // Shown whether or not the bin is emptied, on purpose.
    frame_.ShowProgress("Lösche Papierkorb von Laufwerk '" + frame_.Drive() + "' ...");
    if (frame_.chkCleanRecycleBin.Value() == 1) Skip([&] { EmptyRecycleBin(machine_.shell); });
    const int failed = RemoveRows();
    frame_.lblScannedFiles.SetCaption("Löschvorgang abgeschlossen!");
    frame_.lblHinweisTemp.SetCaption(std::to_string(failed) +
                                     " Dateien konnten nicht gelöscht werden (in Benutzung).");
    frame_.cmdCleanTempFiles.SetEnabled(false);
    frame_.InitFilesView();
    ShowDriveSpace(frame_, machine_);
}

bool TempFileRemoval::AnyTicked() const {
    for (int row = 0; row < frame_.lvwFiles.Count(); ++row) {
        if (frame_.lvwFiles.Ticked(row)) return true;
    }
    return false;
}

// A question that could not be asked is not confirmed.
bool TempFileRemoval::Confirmed() const {
    using namespace platform::message;
    int answer = No;
    Skip([&] {
        answer =
            machine_.messages.Show("Alle markierten Dateien löschen?", Question | YesNo, Title);
    });
    return answer == Yes;
}

int TempFileRemoval::RemoveRows() {
    int failed = 0;
    confirmedLinks_ = links_;
    for (const Row& row : RowsOf(frame_.lvwFiles)) {
        if (row.ticked) {
            if (IsInUse(row.path)) {
                ++failed;
            } else {
                RemoveFile(row.path);
            }
            frame_.ShowProgress("Lösche '" + row.path + "'");
        }
        // Ticked or not, on purpose: a folder that was found always goes.
        if (row.isFolder) RemoveFolder(row.path);
    }
    return failed;
}

bool TempFileRemoval::MayTouch(const std::string& path) const {
    return IsTakenLiterally(path) && confirmedLinks_.LeadTo(machine_.folders, path);
}

// What cannot be opened for another reason than that, a folder for instance, is not in use.
bool TempFileRemoval::IsInUse(const std::string& path) const {
    bool inUse = false;
    Skip([&] { inUse = utilities::FileIsLocked(machine_.files, path); });
    return inUse;
}

void TempFileRemoval::RemoveFile(const std::string& path) {
    Skip([&] {
        if (!MayTouch(path)) return;
        if (frame_.chkMoveToRecycleBin.Value() == 1) {
            MoveToBin(path);
        } else {
            machine_.files.Remove(path, true);
        }
    });
}

void TempFileRemoval::RemoveFolder(const std::string& path) {
    Skip([&] {
        if (!MayTouch(path)) return;
        if (frame_.chkMoveToRecycleBin.Value() == 1) {
            MoveToBin(path);
        } else {
            DeleteFolder(machine_.folders, machine_.files, path);
        }
    });
}

void TempFileRemoval::MoveToBin(const std::string& path) {
    // The shell takes the path in the code page, and what that lacks turns into a wildcard or into
    // another letter: other files would go.
    if (machine_.locale.FromAnsi(machine_.locale.ToAnsi(path)) != path) return;
    // The shell of XP goes into links and deletes what they lead to, so they go before.
    const auto entry = machine_.folders.Find(path);
    if (!entry) return;
    if (entry->IsFolder()) DropLinks(machine_.folders, machine_.files, path);
    if (entry->IsFolder() && entry->IsLink()) return;
    utilities::ShellDeleteFile(machine_.shell, path, false);
}

}  // namespace cleanup
