#include "platform/simulated/files.h"

#include <algorithm>

#include "platform/simulated/faults.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/wording.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace platform::simulated {

namespace {

// Paths are compared without regard to case.
std::string Folded(std::string_view path) {
    return runtime::ToLower(path);
}

std::string DirectoryOf(const std::string& path) {
    return path.substr(0, std::min(path.rfind('\\'), path.size()));
}

}  // namespace

Files::Handle Files::OpenForAppend(std::string_view path) {
    auto line = journal_.Note([&] { return "OpenForAppend " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "OpenForAppend", path);
    std::string folded = Folded(path);
    if (folded.empty()) ThrowFault(journal_, line, runtime::PathNotFound);
    if (IsHeld(folded)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    contents_.try_emplace(folded);
    open_[next_] = {folded, true};
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

Files::Handle Files::OpenForReading(std::string_view path) {
    auto line = journal_.Note([&] { return "OpenForReading " + Quoted(path); });
    PassOrThrow(journal_, faults_, line, "OpenForReading", path);
    const std::string folded = Readable(line, path);
    open_[next_] = {folded, false};
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

void Files::Write(Handle file, std::string_view bytes) {
    auto line = journal_.Note([&] {
        return "WriteFile #" + std::to_string(file) + " " + Quoted(FromWesternBytes(bytes));
    });
    auto found = open_.find(file);
    PassOrThrow(journal_, faults_, line, "WriteFile",
                found == open_.end() ? "" : found->second.path);
    if (found == open_.end()) ThrowFault(journal_, line, runtime::BadFileNumber);
    if (!found->second.forWriting) ThrowFault(journal_, line, runtime::PermissionDenied);
    contents_[found->second.path] += bytes;
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
    const std::string& content = contents_.at(Readable(line, path));
    journal_.Finish(line, [&] { return std::to_string(content.size()) + " bytes"; });
    return content;
}

void Files::Remove(std::string_view path, bool force) {
    auto line =
        journal_.Note([&] { return "DeleteFile " + Quoted(path) + (force ? " force" : ""); });
    PassOrThrow(journal_, faults_, line, "DeleteFile", path);
    const std::string folded = Folded(path);
    if (!IsDirectory(DirectoryOf(folded))) ThrowFault(journal_, line, runtime::PathNotFound);
    if (!contents_.contains(folded)) ThrowFault(journal_, line, runtime::FileNotFound);
    if (IsHeld(folded) || (protected_.contains(folded) && !force)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    contents_.erase(folded);
    protected_.erase(folded);
}

void Files::WriteText(std::string_view path, std::string_view bytes) {
    auto line = journal_.Note([&] {
        return "OpenTextFile " + Quoted(path) + " write " + std::to_string(bytes.size()) + " bytes";
    });
    PassOrThrow(journal_, faults_, line, "OpenTextFile", path);
    const std::string folded = Folded(path);
    if (folded.empty()) ThrowFault(journal_, line, runtime::PathNotFound);
    if (IsHeld(folded)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    contents_[folded] = bytes;
}

std::string Files::Readable(Journal::Place line, std::string_view path) const {
    std::string folded = Folded(path);
    if (IsDirectory(folded)) ThrowFault(journal_, line, runtime::PathFileAccess);
    if (!IsDirectory(DirectoryOf(folded))) ThrowFault(journal_, line, runtime::PathNotFound);
    if (!contents_.contains(folded)) ThrowFault(journal_, line, runtime::FileNotFound);
    // Those who write let others read.
    const bool isRead = std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
        return entry.second.path == folded && !entry.second.forWriting;
    });
    if (isRead || held_.contains(folded)) ThrowFault(journal_, line, runtime::PermissionDenied);
    return folded;
}

bool Files::IsHeld(const std::string& folded) const {
    return readOnly_.contains(DirectoryOf(folded)) || IsOpen(folded);
}

bool Files::IsOpen(const std::string& folded) const {
    return held_.contains(folded) ||
           std::any_of(open_.begin(), open_.end(),
                       [&](const auto& entry) { return entry.second.path == folded; });
}

bool Files::IsDirectory(const std::string& folded) const {
    auto holds = [&](const std::string& path) { return path.starts_with(folded + "\\"); };
    return directories_.contains(folded) ||
           std::any_of(directories_.begin(), directories_.end(), holds) ||
           std::any_of(contents_.begin(), contents_.end(),
                       [&](const auto& entry) { return holds(entry.first); });
}

void Files::Put(std::string_view path, std::string_view bytes) {
    contents_[Folded(path)] = bytes;
}

std::optional<std::string> Files::Content(std::string_view path) const {
    auto found = contents_.find(Folded(path));
    if (found == contents_.end()) return std::nullopt;
    return found->second;
}

void Files::Protect(std::string_view path) {
    protected_.insert(Folded(path));
}

void Files::MakeReadOnly(std::string_view directory) {
    readOnly_.insert(Folded(directory));
}

void Files::MakeDirectory(std::string_view directory) {
    directories_.insert(Folded(directory));
}

void Files::Hold(std::string_view path) {
    held_.insert(Folded(path));
}

std::int32_t Files::Take(std::string_view path) {
    constexpr std::int32_t fileNotFound = 2;
    constexpr std::int32_t sharingViolation = 32;
    std::string folded = Folded(path);
    auto within = [&](const std::string& entry) {
        return entry == folded || entry.starts_with(folded + "\\");
    };
    if (!contents_.contains(folded) && !IsDirectory(folded)) return fileNotFound;
    for (const auto& [entry, content] : contents_) {
        if (within(entry) && IsOpen(entry)) return sharingViolation;
    }
    std::erase_if(contents_, [&](const auto& entry) { return within(entry.first); });
    std::erase_if(directories_, within);
    return 0;
}

}  // namespace platform::simulated
