#include "cleanup/deletefolder.h"

#include "cleanup/folderobjects.h"
#include "cleanup/literalpath.h"
#include "platform/files.h"
#include "runtime/failure.h"

namespace cleanup {
namespace {

enum class What { All, LinksToFolders };

void Take(platform::Folders& folders, platform::Files& files, const std::string& path, What what) {
    // Looked at right before it is entered: what was a folder when its parent was listed may have
    // become a link. One that takes its place later than that is not noticed.
    const auto folder = folders.Find(path);
    if (!folder || !folder->IsFolder()) throw runtime::Failure(runtime::PathNotFound);
    if (!folder->IsLink()) {
        for (const platform::FolderEntry& entry : folders.List(path)) {
            const std::string inside = PathIn(path, entry.name);
            if (!IsTakenLiterally(inside)) throw runtime::Failure(runtime::PermissionDenied);
            if (entry.IsFolder()) {
                Take(folders, files, inside, what);
            } else if (what == What::All) {
                files.Remove(inside, true);
            }
        }
    }
    if (what == What::All || folder->IsLink()) folders.Remove(path, true);
}

}  // namespace

void DeleteFolder(platform::Folders& folders, platform::Files& files, const std::string& path) {
    Take(folders, files, path, What::All);
}

void DropLinks(platform::Folders& folders, platform::Files& files, const std::string& path) {
    Take(folders, files, path, What::LinksToFolders);
}

}  // namespace cleanup
