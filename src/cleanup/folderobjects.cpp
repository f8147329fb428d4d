#include "cleanup/folderobjects.h"

#include "cleanup/literalpath.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace cleanup {

using platform::FolderEntry;

std::string PathIn(std::string_view folder, std::string_view name) {
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path = folder;
    if (!folder.ends_with('\\')) path += '\\';
    return path.append(name);
}

Folder GetFolder(const platform::Folders& folders, std::string_view path) {
    if (path.empty()) throw runtime::Failure(runtime::PathNotFound);
    std::string full = folders.FullPath(path);
    const bool isRoot = full.ends_with(":\\");
    if (!isRoot && full.ends_with('\\')) full.pop_back();
    const auto entry = folders.Find(full);
    if (!entry || !entry->IsFolder()) throw runtime::Failure(runtime::PathNotFound);
    const std::uint32_t attributes = isRoot ? platform::attribute::Directory : entry->attributes;
    return {std::move(full), attributes, entry->modified};
}

std::vector<Folder> SubFolders(platform::Folders& folders, const std::string& path) {
    std::vector<Folder> found;
    for (const FolderEntry& entry : folders.List(path)) {
        if (!entry.IsFolder()) continue;
        found.push_back({PathIn(path, entry.name), entry.attributes, entry.modified});
    }
    return found;
}

std::optional<FolderEntry> AsItIsNow(const platform::Folders& folders, const std::string& path,
                                     const FolderEntry& listed) {
    // Neither a name that the system takes for another one nor a path that is too long for it can
    // be asked for again.
    if (!IsTakenLiterally(path) || runtime::Length(path) >= platform::PathLimit) return listed;
    auto now = folders.Find(path);
    if (now && now->IsFolder() != listed.IsFolder()) now.reset();
    return now;
}

double SizeOf(platform::Folders& folders, const std::string& path) {
    double size = 0;
    for (const FolderEntry& entry : folders.List(path)) {
        size += entry.IsFolder() ? SizeOf(folders, PathIn(path, entry.name))
                                 : static_cast<double>(entry.size);
    }
    return size;
}

}  // namespace cleanup
