#include "platform/simulated/files.h"

#include <algorithm>

#include "platform/simulated/faults.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/wording.h"
#include "runtime/encoding.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

std::string_view DirectoryOf(std::string_view path) {
    return path.substr(0, std::min(path.rfind('\\'), path.size()));
}

bool IsFolder(const DiskNode* node) {
    return node && node->IsFolder();
}

// As the command line's: ? is any one character, * any number of them.
bool Fits(std::string_view pattern, std::string_view name) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == '*') {
        return Fits(pattern.substr(1), name) || (!name.empty() && Fits(pattern, name.substr(1)));
    }
    return !name.empty() && (pattern[0] == '?' || pattern[0] == name[0]) &&
           Fits(pattern.substr(1), name.substr(1));
}

// All files below the folder; the folders stay.
void TakeFiles(DiskNode& folder) {
    for (auto next = folder.children.begin(); next != folder.children.end();) {
        DiskNode& node = **next++;
        if (!node.IsFolder()) {
            Disk::Erase(node);
        } else if (!node.IsLink()) {
            TakeFiles(node);
        }
    }
}

}  // namespace

Files::Handle Files::OpenForAppend(std::string_view path) {
    auto line = journal_.Note([&] { return "OpenForAppend " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "OpenForAppend", path);
    open_[next_] = {Writable(line, path).Path(), true};
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

Files::Handle Files::OpenForReading(std::string_view path) {
    auto line = journal_.Note([&] { return "OpenForReading " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "OpenForReading", path);
    open_[next_] = {Readable(line, path, true).Path(), false};
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

void Files::Write(Handle file, std::string_view bytes) {
    auto line = journal_.Note([&] {
        return "WriteFile #" + std::to_string(file) + " " + Quoted(runtime::FromWestern(bytes));
    });
    auto found = open_.find(file);
    PassOrThrow(journal_, faults_, line, "WriteFile",
                found == open_.end() ? "" : found->second.path);
    if (found == open_.end()) ThrowFault(journal_, line, runtime::BadFileNumber);
    if (!found->second.forWriting) ThrowFault(journal_, line, runtime::PermissionDenied);
    disk_.At(found->second.path).content += bytes;
}

void Files::Close(Handle file) {
    auto line = journal_.Note([&] { return "CloseFile #" + std::to_string(file); });
    auto found = open_.find(file);
    std::string path = found == open_.end() ? "" : found->second.path;
    // A file whose closing fails is closed all the same.
    open_.erase(file);
    PassOrThrow(journal_, faults_, line, "CloseFile", path);
}

std::string Files::Read(std::string_view path) {
    auto line = journal_.Note([&] { return "ReadFile " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "ReadFile", path);
    const std::string& content = Readable(line, path, false).content;
    journal_.Finish(line, [&] { return std::to_string(content.size()) + " bytes"; });
    return content;
}

void Files::Remove(std::string_view path, bool force) {
    auto line =
        journal_.Note([&] { return "DeleteFile " + Quoted(path) + (force ? " force" : ""); });
    PassOrThrow(journal_, faults_, line, "DeleteFile", path);
    if (!IsFolder(disk_.Find(DirectoryOf(path)))) ThrowFault(journal_, line, runtime::PathNotFound);
    DiskNode* file = disk_.Find(path, Disk::Last::Keep);
    if (!file) ThrowFault(journal_, line, runtime::FileNotFound);
    const bool isProtected = file->attributes & attribute::ReadOnly;
    if (file->IsFolder() || IsHeld(*file) || (isProtected && !force)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    Disk::Erase(*file);
}

void Files::WriteText(std::string_view path, std::string_view bytes) {
    auto line = journal_.Note([&] {
        return "OpenTextFile " + Quoted(path) + " write " + std::to_string(bytes.size()) + " bytes";
    });
    PassOrThrow(journal_, faults_, line, "OpenTextFile", path);
    Writable(line, path).content = bytes;
}

const DiskNode& Files::Readable(Journal::Place line, std::string_view path, bool alone) const {
    const DiskNode* node = disk_.Find(path);
    if (IsFolder(node)) ThrowFault(journal_, line, runtime::PathFileAccess);
    if (!IsFolder(disk_.Find(DirectoryOf(path)))) ThrowFault(journal_, line, runtime::PathNotFound);
    if (!node) ThrowFault(journal_, line, runtime::FileNotFound);
    // Those who write let others read.
    const std::string place = node->Path();
    const bool isRead = std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
        return entry.second.path == place && !entry.second.forWriting;
    });
    if (isRead || node->held || (alone && node->shared)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    return *node;
}

DiskNode& Files::Writable(Journal::Place line, std::string_view path) {
    if (path.empty()) ThrowFault(journal_, line, runtime::PathNotFound);
    const DiskNode* directory = disk_.Find(DirectoryOf(path));
    const DiskNode* file = disk_.Find(path);
    if ((directory && directory->unwritable) || IsFolder(file) || (file && IsHeld(*file))) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    return disk_.MakeFile(path);
}

bool Files::IsHeld(const DiskNode& node) const {
    return node.held || node.shared || node.parent->unwritable || IsOpen(node);
}

bool Files::IsOpen(const DiskNode& node) const {
    if (open_.empty()) return false;
    const std::string place = node.Path();
    return std::any_of(open_.begin(), open_.end(),
                       [&](const auto& entry) { return entry.second.path == place; });
}

void Files::Put(std::string_view path, std::string_view bytes) {
    disk_.MakeFile(path).content = bytes;
}

std::optional<std::string> Files::Content(std::string_view path) const {
    const DiskNode* node = disk_.Find(path);
    if (!node || node->IsFolder()) return std::nullopt;
    return node->content;
}

void Files::Protect(std::string_view path) {
    disk_.At(path).attributes |= attribute::ReadOnly;
}

void Files::MakeReadOnly(std::string_view directory) {
    disk_.MakeFolder(directory).unwritable = true;
}

void Files::MakeDirectory(std::string_view directory) {
    disk_.MakeFolder(directory);
}

void Files::Hold(std::string_view path) {
    disk_.At(path).held = true;
}

bool Files::AnyInUse(const DiskNode& node) const {
    return node.held || IsOpen(node) ||
           std::any_of(node.children.begin(), node.children.end(),
                       [&](const auto& child) { return AnyInUse(*child); });
}

void Files::TakeTree(DiskNode& node) {
    if (DiskNode* target = node.IsLink() ? disk_.Find(node.target) : nullptr) TakeFiles(*target);
    while (!node.children.empty()) TakeTree(*node.children.front());
    Disk::Erase(node);
}

std::int32_t Files::Take(std::string_view path) {
    constexpr std::int32_t fileNotFound = 2;
    constexpr std::int32_t sharingViolation = 32;
    const std::string pattern =
        runtime::ToLower(path.substr(std::min(path.rfind('\\') + 1, path.size())));
    DiskNode* folder = disk_.Find(DirectoryOf(path));
    std::vector<DiskNode*> nodes;
    if (folder) {
        for (const auto& node : folder->children) {
            if (Fits(pattern, runtime::ToLower(node->name))) nodes.push_back(node.get());
        }
    }
    if (nodes.empty()) return fileNotFound;
    for (DiskNode* node : nodes) {
        if (AnyInUse(*node)) return sharingViolation;
        TakeTree(*node);
    }
    return 0;
}

}  // namespace platform::simulated
