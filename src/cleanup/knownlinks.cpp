#include "cleanup/knownlinks.h"

#include "platform/folders.h"

namespace cleanup {

namespace {

// Calls `visit` with each link above the path until it returns false; returns what it did last.
template <typename Visit>
bool EachLinkAbove(const platform::Folders& folders, const std::string& path, Visit visit) {
    // The first backslash stands behind the drive, which is no link.
    for (auto end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1)) {
        const std::string above = path.substr(0, end);
        if (above.ends_with(':')) continue;
        const auto entry = folders.Find(above);
        if (entry && entry->IsLink() && !visit(above)) return false;
    }
    return true;
}

}  // namespace

void KnownLinks::AddAbove(const platform::Folders& folders, const std::string& path) {
    EachLinkAbove(folders, path, [&](const std::string& link) {
        Add(link);
        return true;
    });
}

bool KnownLinks::LeadTo(const platform::Folders& folders, const std::string& path) const {
    return EachLinkAbove(folders, path,
                         [&](const std::string& link) { return paths_.contains(link); });
}

}  // namespace cleanup
