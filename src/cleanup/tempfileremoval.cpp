#include "cleanup/tempfileremoval.h"

#include <vector>

#include "cleanup/deletefolder.h"
#include "cleanup/drivespacelabels.h"
#include "cleanup/knownlinks.h"
#include "cleanup/recyclebin.h"
#include "cleanup/tempfilesframe.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/messages.h"
#include "runtime/failure.h"
#include "system/filelock.h"
#include "system/shelldelete.h"
#include "toolkit/form.h"

namespace cleanup {

using runtime::Skip;

namespace {

constexpr auto Title = "Tempdateien löschen";

struct TickedRow {
    std::string path;
    bool ticked = false;
    bool isFolder = false;
};

std::vector<TickedRow> RowsOf(const toolkit::ListView& list) {
    std::vector<TickedRow> rows;
    for (int row = 0; row < list.Count(); ++row) {
        // The one word on purpose: elsewhere, where the shell has another one, folders stay.
        rows.push_back(
            {list.Text(row), list.Ticked(row), list.Text(row, column::Type) == "Dateiordner"});
    }
    return rows;
}

// What the user has confirmed, as it was at that moment: emptying the bin and the shell's own
// questions let events through, and neither a search nor another removal nor a box ticked meanwhile
// may change what goes, and how. Nothing is deleted behind a link that has come since the search;
// a folder that is exchanged for a link within the moment between the look at it and its deletion
// is not noticed.
class Removal {
  public:
    Removal(TempFilesFrame& frame, const platform::Machine& machine, const KnownLinks& links)
        : frame_(frame),
          machine_(machine),
          rows_(RowsOf(frame.lvwFiles)),
          links_(links),
          emptiesBin_(frame.chkCleanRecycleBin.Value() == 1),
          intoBin_(frame.chkMoveToRecycleBin.Value() == 1) {}

    void EmptyBin() const;
    // Returns how many of the ticked files were in use.
    int RemoveRows() const;

  private:
    bool MayTouch(const std::string& path) const {
        return links_.AllowRemoval(machine_.folders, path);
    }
    bool IsInUse(const std::string& path) const;
    void RemoveFile(const std::string& path) const;
    void RemoveFolder(const std::string& path) const;
    void MoveToBin(const std::string& path) const;

    TempFilesFrame& frame_;
    platform::Machine machine_;
    const std::vector<TickedRow> rows_;
    const KnownLinks links_;
    const bool emptiesBin_;
    const bool intoBin_;
};

void Removal::EmptyBin() const {
    // Shown whether or not the bin is emptied, on purpose.
    frame_.ShowProgress("Lösche Papierkorb von Laufwerk '" + frame_.Drive() + "' ...");
    if (emptiesBin_) Skip([&] { EmptyRecycleBin(machine_.shell); });
}

int Removal::RemoveRows() const {
    int failed = 0;
    for (const TickedRow& row : rows_) {
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

// What cannot be opened for another reason than that, a folder for instance, is not in use. A path
// that names something else by now is not opened at all.
bool Removal::IsInUse(const std::string& path) const {
    bool inUse = false;
    Skip([&] { inUse = MayTouch(path) && sys::FileIsLocked(machine_.files, path); });
    return inUse;
}

void Removal::RemoveFile(const std::string& path) const {
    Skip([&] {
        if (!MayTouch(path)) return;
        if (intoBin_) {
            MoveToBin(path);
        } else {
            machine_.files.Remove(path, true);
        }
    });
}

void Removal::RemoveFolder(const std::string& path) const {
    Skip([&] {
        if (!MayTouch(path)) return;
        if (intoBin_) {
            MoveToBin(path);
        } else {
            DeleteFolder(machine_.folders, machine_.files, path);
        }
    });
}

void Removal::MoveToBin(const std::string& path) const {
    // The shell takes the path in the code page, and what that lacks turns into a wildcard or into
    // another letter: other files would go.
    if (machine_.locale.FromAnsi(machine_.locale.ToAnsi(path)) != path) return;
    // The shell of XP goes into links to folders and deletes what they lead to, so they go before.
    const auto entry = machine_.folders.Find(path);
    if (!entry) return;
    if (entry->IsFolder()) DropLinks(machine_.folders, machine_.files, path);
    if (entry->IsFolder() && entry->IsLink()) return;
    sys::ShellDeleteFile(machine_.shell, path, false);
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
    const Removal removal(frame_, machine_, links_);
    const toolkit::ScreenHourglass hourglass{machine_.forms};
    removal.EmptyBin();
    const int failed = removal.RemoveRows();
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

}  // namespace cleanup
