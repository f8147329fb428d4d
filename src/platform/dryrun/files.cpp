#include "platform/dryrun/files.h"

#include <algorithm>
#include <utility>

#include "runtime/failure.h"
#include "runtime/text.h"

namespace platform::dryrun {

using runtime::Failure;

Files::~Files() {
    for (const auto& entry : open_) {
        const auto& inside = entry.second.inside;
        if (inside) runtime::Skip([&] { inner_.Close(*inside); });
    }
}

Files::Handle Files::OpenForAppend(std::string_view path) {
    const std::string place = PlaceOf(path);
    CheckWritable(path, place);
    if (!pending_.contains(place)) {
        const std::string name(path);
        pending_[place] = {name, InnerContent(name)};
    }
    Pending& file = pending_[place];
    if (!file.content) file.content = "";
    return NewHandle({place, true, std::nullopt});
}

Files::Handle Files::OpenForReading(std::string_view path) {
    const std::string place = PlaceOf(path);
    const auto found = pending_.find(place);
    if (found == pending_.end()) return NewHandle({place, false, inner_.OpenForReading(path)});
    if (!found->second.content) throw Failure(runtime::FileNotFound);
    if (IsOpen(place, false)) throw Failure(runtime::PermissionDenied);
    return NewHandle({place, false, std::nullopt});
}

void Files::Write(Handle file, std::string_view bytes) {
    const auto found = open_.find(file);
    if (found == open_.end()) throw Failure(runtime::BadFileNumber);
    if (!found->second.forWriting) throw Failure(runtime::PermissionDenied);
    *pending_[found->second.place].content += bytes;
}

void Files::Close(Handle file) {
    const auto found = open_.find(file);
    if (found == open_.end()) return;
    const auto inside = found->second.inside;
    open_.erase(found);
    if (inside) inner_.Close(*inside);
}

std::string Files::Read(std::string_view path) {
    const std::string place = PlaceOf(path);
    const auto found = pending_.find(place);
    if (found == pending_.end()) return inner_.Read(path);
    if (!found->second.content) throw Failure(runtime::FileNotFound);
    if (IsOpen(place, false)) throw Failure(runtime::PermissionDenied);
    return *found->second.content;
}

void Files::Remove(std::string_view path, bool force) {
    const std::string place = PlaceOf(path);
    if (IsOpen(place, true) || IsOpen(place, false)) throw Failure(runtime::PermissionDenied);
    const auto found = pending_.find(place);
    if (found != pending_.end()) {
        if (!found->second.content) throw Failure(runtime::FileNotFound);
        found->second.content.reset();
        return;
    }
    const auto entry = folders_.Find(path);
    if (entry && (entry->IsFolder() || (entry->attributes & attribute::ReadOnly && !force))) {
        throw Failure(runtime::PermissionDenied);
    }
    // Refuses what is not there, and what somebody has open.
    inner_.Close(inner_.OpenForReading(path));
    pending_[place] = {std::string(path), std::nullopt};
}

void Files::WriteText(std::string_view path, std::string_view bytes) {
    const std::string place = PlaceOf(path);
    CheckWritable(path, place);
    pending_[place] = {std::string(path), std::string(bytes)};
}

std::vector<Files::Pending> Files::Changes() {
    std::vector<Pending> changes;
    for (const auto& [place, file] : pending_) {
        if (InnerContent(file.path) != file.content) changes.push_back(file);
    }
    return changes;
}

std::string Files::PlaceOf(std::string_view path) const {
    return runtime::ToLower(folders_.FullPath(path));
}

bool Files::IsOpen(const std::string& place, bool forWriting) const {
    return std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
        return entry.second.place == place && entry.second.forWriting == forWriting;
    });
}

// Nothing where there is no file; one that cannot be read is a failure.
std::optional<std::string> Files::InnerContent(const std::string& path) {
    if (!folders_.Find(path)) return std::nullopt;
    return inner_.Read(path);
}

void Files::CheckWritable(std::string_view path, const std::string& place) const {
    constexpr std::size_t RootLength = 3;
    const std::string directory = place.substr(0, std::min(place.rfind('\\'), place.size()));
    const auto folder = folders_.Find(directory);
    const bool isThere = directory.size() < RootLength || (folder && folder->IsFolder());
    if (path.empty() || !isThere) throw Failure(runtime::PathNotFound);
    const auto entry = folders_.Find(path);
    const bool isRemoved = pending_.contains(place) && !pending_.at(place).content;
    const bool refuses =
        entry && (entry->IsFolder() || (entry->attributes & attribute::ReadOnly && !isRemoved));
    if (refuses || IsOpen(place, true) || IsOpen(place, false)) {
        throw Failure(runtime::PermissionDenied);
    }
}

Files::Handle Files::NewHandle(Opened opened) {
    open_[next_] = std::move(opened);
    return next_++;
}

}  // namespace platform::dryrun
