#include "platform/simulated/systemfacts.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/systeminformation.h"
#include "platform/simulated/wording.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

// The buffers hold that many bytes, the terminating NUL among them.
constexpr std::size_t BufferSize = 255;

// A text that the system does not tell, or that does not fit, is "".
std::string ToldText(Journal& journal, Faults& faults, const char* call, const std::string& text) {
    bool fits = ToWesternBytes(text).size() < BufferSize;
    std::string told = faults.Check(call, "") || !fits ? "" : text;
    journal.Note([&] { return call + (" -> " + Quoted(told)); });
    return told;
}

std::string RootOf(char drive) {
    return {drive, ':', '\\'};
}

}  // namespace

std::string SystemFacts::WindowsDirectory() const {
    return ToldText(journal_, faults_, "GetWindowsDirectoryA", windowsDirectory);
}

std::string SystemFacts::SystemDirectory() const {
    return ToldText(journal_, faults_, "GetSystemDirectoryA", systemDirectory);
}

std::string SystemFacts::TempPath() const {
    return ToldText(journal_, faults_, "GetTempPathA", tempPath);
}

std::string SystemFacts::UserName() const {
    return ToldText(journal_, faults_, "GetUserNameA", userName);
}

std::string SystemFacts::ExpandEnvironment(std::string_view text) const {
    std::string expanded;
    std::string_view rest = text.substr(0, text.find('\0'));
    while (!rest.empty()) {
        const std::size_t end = rest.front() == '%' ? rest.find('%', 1) : std::string_view::npos;
        const std::string* value =
            end == std::string_view::npos ? nullptr : Variable(rest.substr(1, end - 1));
        expanded += value ? std::string_view(*value) : rest.substr(0, 1);
        rest.remove_prefix(value ? end + 1 : 1);
    }
    if (faults_.Check("ExpandEnvironmentStringsA", text)) expanded.clear();
    journal_.Note(
        [&] { return "ExpandEnvironmentStringsA " + Quoted(text) + " -> " + Quoted(expanded); });
    return expanded;
}

const std::string* SystemFacts::Variable(std::string_view name) const {
    for (const auto& [known, value] : environment) {
        if (runtime::EqualsIgnoringCase(known, name)) return &value;
    }
    return nullptr;
}

DiskSpace SystemFacts::Space(std::string_view directory) const {
    bool fails = faults_.Check("GetDiskFreeSpaceExA", directory).has_value();
    bool isPath = directory.size() > 1 && directory[1] == ':';
    DiskSpace space = fails || !isPath ? DiskSpace{} : SpaceOf(runtime::ToUpper(directory)[0]);
    journal_.Note([&] {
        return "GetDiskFreeSpaceExA " + Quoted(directory) + " -> " +
               std::to_string(space.freeToUser) + " " + std::to_string(space.total) + " " +
               std::to_string(space.free);
    });
    return space;
}

DiskSpace SystemFacts::SpaceOf(char drive) const {
    const auto volume = information_.volumes.find(RootOf(drive));
    if (volume == information_.volumes.end()) return {};
    const std::uint64_t freeToUser = volume->second.free.value_or(0);
    const auto free = free_.find(drive);
    return {freeToUser, volume->second.size.value_or(0),
            free == free_.end() ? freeToUser : free->second};
}

void SystemFacts::SetSpace(char drive, DiskSpace space) {
    Volume& volume = information_.volumes[RootOf(drive)];
    volume.size = space.total;
    volume.free = space.freeToUser;
    free_.erase(drive);
    if (space.free != space.freeToUser) free_[drive] = space.free;
}

}  // namespace platform::simulated
