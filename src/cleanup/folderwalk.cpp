#include "cleanup/folderwalk.h"

#include <limits>

#include "cleanup/attributerules.h"
#include "cleanup/folderobjects.h"
#include "cleanup/knownlinks.h"
#include "cleanup/namerules.h"
#include "cleanup/tempfilesframe.h"
#include "cleanup/texts.h"
#include "platform/display.h"
#include "platform/keyboard.h"
#include "platform/locale.h"
#include "platform/shell.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "toolkit/form.h"
#include "toolkit/keys.h"

namespace cleanup {

using platform::FolderEntry;

namespace {

// Pixels that the path of the current file may take.
constexpr int TextWidth = 300;

bool IsOn(const toolkit::CheckBox& box) {
    return box.Value() == 1;
}

}  // namespace

void FolderWalk::Begin() {
    scannedFiles_ = 0;
    rules_.emplace(machine_);
}

bool FolderWalk::PollForStop() {
    const bool wanted = machine_.keyboard.AsyncState(toolkit::key::Escape) != 0 || stopped_;
    if (wanted) frame_.cmdSearchTempFiles.SetEnabled(true);
    return wanted;
}

void FolderWalk::ScanFolder(const Folder& folder, bool addAll) {
    machine_.forms.DoEvents();
    if (PollForStop()) return;
    if (AttributesHideFolder(folder.attributes) || rules_->IsExcludedFolder(folder.path)) return;
    if (folder.attributes & platform::attribute::Link) links_.Add(machine_.folders, folder.path);
    std::vector<FolderEntry> entries;
    runtime::Skip([&] { entries = machine_.folders.List(folder.path); });
    for (const FolderEntry& entry : entries) {
        if (!entry.IsFolder()) continue;
        ScanFolder({PathIn(folder.path, entry.name), entry.attributes, entry.modified}, addAll);
    }
    // One text for the paths of all files, so that each needs only its name put in.
    std::string path = PathIn(folder.path, "");
    const std::size_t start = path.size();
    for (const FolderEntry& entry : entries) {
        if (entry.IsFolder()) continue;
        path.replace(start, std::string::npos, entry.name);
        ScanFile(path, entry, addAll);
        if (PollForStop()) return;
    }
}

void FolderWalk::ScanFile(const std::string& path, const FolderEntry& file, bool addAll) {
    frame_.lblScannedFiles.SetToolTip(path);
    if (scannedFiles_ < std::numeric_limits<std::int32_t>::max()) ++scannedFiles_;
    counts_ = "Gescannte Dateien: ";
    counts_.append(std::to_string(scannedFiles_)).append(" - davon Tempdateien: ");
    counts_.append(std::to_string(frame_.lvwFiles.Count()));
    frame_.lblHinweisTemp.SetCaption(counts_);
    frame_.ShowProgress(TrimAtNul(machine_.display.CompactPath(frame_.form, path, TextWidth)));
    const bool byName = addAll || IsTempFile(path, IsOn(frame_.chkDeleteThumbs));
    const bool bySize = IsOn(frame_.chkNullByteFiles);
    if (!byName && !(bySize && file.size == 0)) return;
    // The folder was listed before those below it were walked, which may be long ago.
    const auto now = AsItIsNow(machine_.folders, path, file);
    if (!now) return;
    const auto add = [&] {
        runtime::Skip([&] {
            AddFileRow(path, static_cast<double>(now->size),
                       machine_.shell.TypeName(path, now->attributes), now->modified,
                       now->attributes);
        });
    };
    // An empty file may get two rows, on purpose.
    if (bySize && now->size == 0) add();
    if (byName) add();
}

void FolderWalk::AddFileRow(const std::string& path, double size, const std::string& type,
                            const platform::LocalTime& modified, std::uint32_t attributes) {
    if (!AttributesGiveRow(attributes, path, IsOn(frame_.chkDeleteThumbs))) return;
    toolkit::ListView& list = frame_.lvwFiles;
    const int added = list.AddRow(path);
    const int last = list.Count() - 1;
    list.SetText(last, column::Size, runtime::ToText(size, machine_.locale.Signs()));
    list.SetText(last, column::Type, type);
    list.SetText(last, column::Changed, DateText(machine_.locale, modified));
    list.SetTicked(added, true);
}

}  // namespace cleanup
