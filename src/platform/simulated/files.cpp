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
    if (readOnly_.contains(DirectoryOf(folded)) || IsOpen(folded)) {
        ThrowFault(journal_, line, runtime::PermissionDenied);
    }
    contents_.try_emplace(folded);
    open_[next_] = folded;
    journal_.Finish(line, [&] { return "#" + std::to_string(next_); });
    return next_++;
}

void Files::Write(Handle file, std::string_view bytes) {
    auto line = journal_.Note([&] {
        return "WriteFile #" + std::to_string(file) + " " + Quoted(FromWesternBytes(bytes));
    });
    auto found = open_.find(file);
    PassOrThrow(journal_, faults_, line, "WriteFile", found == open_.end() ? "" : found->second);
    if (found == open_.end()) ThrowFault(journal_, line, runtime::BadFileNumber);
    contents_[found->second] += bytes;
}

void Files::Close(Handle file) {
    auto line = journal_.Note([&] { return "CloseFile #" + std::to_string(file); });
    auto found = open_.find(file);
    std::string path = found == open_.end() ? "" : found->second;
    // A file whose closing fails is closed all the same.
    open_.erase(file);
    PassOrThrow(journal_, faults_, line, "CloseFile", path);
}

bool Files::IsOpen(const std::string& folded) const {
    return std::any_of(open_.begin(), open_.end(),
                       [&](const auto& entry) { return entry.second == folded; });
}

void Files::Put(std::string_view path, std::string_view bytes) {
    contents_[Folded(path)] = bytes;
}

std::optional<std::string> Files::Content(std::string_view path) const {
    auto found = contents_.find(Folded(path));
    if (found == contents_.end()) return std::nullopt;
    return found->second;
}

void Files::MakeReadOnly(std::string_view directory) {
    readOnly_.insert(Folded(directory));
}

}  // namespace platform::simulated
