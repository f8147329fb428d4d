#include "cleanup/knownlinks.h"

#include "cleanup/literalpath.h"

namespace cleanup {
namespace {

// Where the first folder begins: behind the drive's backslash, or behind server and share.
std::size_t FirstFolder(const std::string& path) {
    std::size_t end = path.find('\\');
    if (path.starts_with("\\\\")) {
        end = path.find('\\', 2);
        if (end != std::string::npos) end = path.find('\\', end + 1);
    }
    return end == std::string::npos ? path.size() : end + 1;
}

// Calls `visit` with each folder above the path until it returns false; returns what it did last.
template <typename Visit>
bool EachFolderAbove(const std::string& path, Visit visit) {
    for (auto end = path.find('\\', FirstFolder(path)); end != std::string::npos;
         end = path.find('\\', end + 1)) {
        if (!visit(path.substr(0, end))) return false;
    }
    return true;
}

}  // namespace

void KnownLinks::Add(const platform::Folders& folders, const std::string& path) {
    EachFolderAbove(path + '\\', [&](const std::string& folder) {
        const auto entry = folders.Find(folder);
        if (entry && entry->IsLink()) links_[folder] = *entry;
        return true;
    });
}

bool KnownLinks::AllowRemoval(const platform::Folders& folders, const std::string& path) const {
    return IsTakenLiterally(path) && LeadTo(folders, path);
}

bool KnownLinks::LeadTo(const platform::Folders& folders, const std::string& path) const {
    return EachFolderAbove(path, [&](const std::string& folder) {
        const auto entry = folders.Find(folder);
        if (!entry || !entry->IsLink()) return entry.has_value();
        const auto known = links_.find(folder);
        return known != links_.end() && known->second == *entry;
    });
}

}  // namespace cleanup
