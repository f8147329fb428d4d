#include "platform/simulated/system.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

namespace {

// A directory that the system does not tell is "".
std::string Directory(Journal& journal, Faults& faults, const char* call,
                      const std::string& directory) {
    std::string told = faults.Check(call, "") ? "" : directory;
    journal.Note([&] { return call + (" -> " + Quoted(told)); });
    return told;
}

}  // namespace

OperatingSystemFacts OperatingSystem::Facts() const {
    auto line = journal_.Note([] { return std::string("GetVersionExA"); });
    PassOrThrow(journal_, faults_, line, "GetVersionExA", "");
    journal_.Finish(line, [&] {
        return std::to_string(facts.major) + "." + std::to_string(facts.minor) + "." +
               std::to_string(facts.build);
    });
    return facts;
}

std::string SystemFacts::WindowsDirectory() const {
    return Directory(journal_, faults_, "GetWindowsDirectoryA", windowsDirectory);
}

std::string SystemFacts::SystemDirectory() const {
    return Directory(journal_, faults_, "GetSystemDirectoryA", systemDirectory);
}

std::string Memory::TotalPhysical() const {
    auto line = journal_.Note([] { return std::string("Memory.TotalPhysical"); });
    PassOrThrow(journal_, faults_, line, "Memory.TotalPhysical", "");
    journal_.Finish(line, [&] { return Quoted(totalPhysical); });
    return totalPhysical;
}

}  // namespace platform::simulated
