#include "platform/simulated/folders.h"

#include "platform/simulated/disk.h"
#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

// The search for what is in a folder adds a backslash and an asterisk.
constexpr std::size_t ListLimit = 258;

FolderEntry EntryOf(const DiskNode& node) {
    return {node.name, node.attributes, node.IsFolder() ? 0 : node.Size(), node.modified};
}

// From the drive on, by what `name` makes of each name.
std::string PathThrough(const DiskNode& node, std::string (*name)(const std::string&)) {
    const bool isDrive = !node.parent->parent;
    if (isDrive) return node.name + '\\';
    const std::string above = PathThrough(*node.parent, name);
    return above + (above.ends_with('\\') ? "" : "\\") + name(node.name);
}

}  // namespace

std::vector<FolderEntry> Folders::List(std::string_view path) {
    auto line = journal_.Note([&] { return "FindFirstFileW " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "FindFirstFileW", path);
    const DiskNode* folder = runtime::Length(path) < ListLimit ? disk_.Find(path) : nullptr;
    if (!folder || !folder->IsFolder()) ThrowFault(journal_, line, runtime::PathNotFound);
    if (folder->unreadable) ThrowFault(journal_, line, runtime::PermissionDenied);
    std::vector<FolderEntry> entries;
    for (const auto& node : folder->children) entries.push_back(EntryOf(*node));
    journal_.Finish(line, [&] { return std::to_string(entries.size()); });
    if (afterListing) afterListing(std::string(path));
    return entries;
}

std::optional<FolderEntry> Folders::Find(std::string_view path) const {
    auto line = journal_.Note([&] { return "GetFileAttributesExW " + Quoted(path); });
    const DiskNode* node =
        faults_.Check("GetFileAttributesExW", path) ? nullptr : disk_.Find(path, Disk::Last::Keep);
    journal_.Finish(line, [&] { return node ? Hex(node->attributes) : std::string("nothing"); });
    if (!node) return std::nullopt;
    FolderEntry entry = EntryOf(*node);
    entry.name = path;
    return entry;
}

std::string Folders::FullPath(std::string_view path) const {
    std::string full(path);
    if (full.starts_with('\\')) full.insert(0, current.substr(0, 2));
    if (full.size() == 2 && full[1] == ':') {
        full = runtime::EqualsIgnoringCase(full, current.substr(0, 2)) ? current : full + '\\';
    }
    journal_.Note([&] { return "GetFullPathNameW " + Quoted(path) + " -> " + Quoted(full); });
    return full;
}

void Folders::MakeCurrent(std::string_view path) {
    auto line = journal_.Note([&] { return "SetCurrentDirectoryW " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "SetCurrentDirectoryW", path);
    const DiskNode* folder = disk_.Find(path);
    if (!folder || !folder->IsFolder()) ThrowFault(journal_, line, runtime::PathNotFound);
    current = path;
}

std::string Folders::ShortPath(std::string_view path, std::size_t room) const {
    const DiskNode* node = faults_.Check("GetShortPathNameA", path) ? nullptr : disk_.Find(path);
    std::string shortPath = node ? PathThrough(*node, ShortName) : "";
    if (runtime::Length(shortPath) >= room) shortPath.clear();
    journal_.Note([&] { return "GetShortPathNameA " + Quoted(path) + " -> " + Quoted(shortPath); });
    return shortPath;
}

std::string Folders::LongPath(std::string_view path) const {
    const DiskNode* node = faults_.Check("GetLongPathNameW", path) ? nullptr : disk_.Find(path);
    const auto name = [](const std::string& own) { return own; };
    const std::string longPath = node ? PathThrough(*node, name) : std::string(path);
    journal_.Note([&] { return "GetLongPathNameW " + Quoted(path) + " -> " + Quoted(longPath); });
    return longPath;
}

void Folders::Remove(std::string_view path, bool force) {
    auto line =
        journal_.Note([&] { return "RemoveDirectoryW " + Quoted(path) + (force ? " force" : ""); });
    PassOrThrow(journal_, faults_, line, "RemoveDirectoryW", path);
    DiskNode* folder = disk_.Find(path, Disk::Last::Keep);
    if (!folder) ThrowFault(journal_, line, runtime::PathNotFound);
    const bool isProtected = folder->attributes & attribute::ReadOnly;
    if (!folder->IsFolder() || !folder->children.empty() || folder->held ||
        folder->parent->unwritable || (isProtected && !force)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    Disk::Erase(*folder);
}

}  // namespace platform::simulated
