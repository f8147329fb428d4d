#include "platform/simulated/processes.h"

#include <algorithm>

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

std::uint32_t Processes::Start(std::string_view commandLine, std::int32_t windowStyle) {
    auto line = journal_.Note(
        [&] { return "Start " + Quoted(commandLine) + " " + std::to_string(windowStyle); });
    PassOrThrow(journal_, faults_, line, "Start", commandLine);
    launched.push_back({std::string(commandLine), windowStyle});
    runs.push_back(whenStarted ? whenStarted(launched.back().commandLine) : Run{});
    return IdStep * static_cast<std::uint32_t>(runs.size());
}

Processes::Handle Processes::Open(std::uint32_t access, std::uint32_t processId) {
    const std::size_t number = processId / IdStep;
    const bool isThere = processId % IdStep == 0 && number > 0 && number <= runs.size() &&
                         runs[number - 1].questions > 0;
    const bool opens = isThere && !faults_.Check("OpenProcess", launched[number - 1].commandLine);
    if (opens) opened_.push_back(number - 1);
    const Handle handle = opens ? FirstOpened + opened_.size() - 1 : 0;
    journal_.Note([&] {
        return "OpenProcess " + Hex(access) + " " + std::to_string(processId) + " -> " +
               (opens ? "#" : "") + std::to_string(handle);
    });
    return handle;
}

std::optional<std::uint32_t> Processes::ExitCode(Handle process) {
    const std::size_t* number = FindOpened(process);
    const bool fails = faults_.Check("GetExitCodeProcess", "").has_value();
    if (!number || fails) return std::nullopt;
    Run& run = runs[*number];
    if (run.questions == 0) return run.exitCode;
    if (run.questions != Run::Endless) --run.questions;
    return StillActive;
}

void Processes::WaitForEnd(Handle process) {
    journal_.Note([&] { return "WaitForSingleObject #" + std::to_string(process); });
    Started* open = Find(process);
    bool fails = faults_.Check("WaitForSingleObject", open ? open->commandLine : "").has_value();
    if (open && !fails) open->waitedFor = true;
}

bool Processes::Close(Handle process) {
    Started* open = Find(process);
    std::size_t* opened = FindOpened(process);
    bool fails = faults_.Check("CloseHandle", open ? open->commandLine : "").has_value();
    bool done = (open || opened) && !fails;
    if (done && open) open->closed = true;
    if (done && opened) *opened = Closed;
    journal_.Note(
        [&] { return "CloseHandle #" + std::to_string(process) + " -> " + std::to_string(done); });
    return done;
}

int Processes::OpenHandles() const {
    return static_cast<int>(opened_.size() - static_cast<std::size_t>(std::count(
                                                 opened_.begin(), opened_.end(), Closed)));
}

std::size_t* Processes::FindOpened(Handle process) {
    if (process < FirstOpened || process >= FirstOpened + opened_.size()) return nullptr;
    std::size_t& number = opened_[process - FirstOpened];
    return number == Closed ? nullptr : &number;
}

Processes::Started* Processes::Find(Handle process) {
    if (process == 0 || process > started_.size()) return nullptr;
    Started& started = started_[process - 1];
    return started.closed ? nullptr : &started;
}

}  // namespace platform::simulated
