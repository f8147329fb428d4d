#include "platform/simulated/processes.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

Processes::Handle Processes::Create(std::string_view commandLine, std::uint32_t creationFlags,
                                    const StartupInfo& startup) {
    bool starts = !faults_.Check("CreateProcessA", commandLine);
    if (starts) started_.push_back({std::string(commandLine), creationFlags, startup});
    // Handles are the places in the list, counted from 1.
    Handle handle = starts ? started_.size() : 0;
    journal_.Note([&] {
        return "CreateProcessA " + Quoted(commandLine) + " flags " + Hex(creationFlags) + " cb " +
               std::to_string(startup.cb) + " dwFlags " + std::to_string(startup.dwFlags) +
               " wShowWindow " + std::to_string(startup.wShowWindow) + " -> " +
               (starts ? "#" : "") + std::to_string(handle);
    });
    return handle;
}

void Processes::Start(std::string_view commandLine, std::int32_t windowStyle) {
    auto line = journal_.Note(
        [&] { return "Start " + Quoted(commandLine) + " " + std::to_string(windowStyle); });
    PassOrThrow(journal_, faults_, line, "Start", commandLine);
    launched.push_back({std::string(commandLine), windowStyle});
}

void Processes::WaitForEnd(Handle process) {
    journal_.Note([&] { return "WaitForSingleObject #" + std::to_string(process); });
    Started* open = Find(process);
    bool fails = faults_.Check("WaitForSingleObject", open ? open->commandLine : "").has_value();
    if (open && !fails) open->waitedFor = true;
}

bool Processes::Close(Handle process) {
    Started* open = Find(process);
    bool fails = faults_.Check("CloseHandle", open ? open->commandLine : "").has_value();
    bool done = open && !fails;
    if (done) open->closed = true;
    journal_.Note(
        [&] { return "CloseHandle #" + std::to_string(process) + " -> " + std::to_string(done); });
    return done;
}

Processes::Started* Processes::Find(Handle process) {
    if (process == 0 || process > started_.size()) return nullptr;
    Started& started = started_[process - 1];
    return started.closed ? nullptr : &started;
}

}  // namespace platform::simulated
