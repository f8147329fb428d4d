#pragma once

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "platform/processes.h"

namespace platform::simulated {

class Faults;
class Journal;

// Processes that start when the test says so and end as soon as somebody waits for them.
class Processes final : public platform::Processes {
  public:
    Processes(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    Handle Create(std::string_view commandLine, std::uint32_t creationFlags,
                  const StartupInfo& startup) override;
    std::uint32_t Start(std::string_view commandLine, std::int32_t windowStyle) override;
    Handle Open(std::uint32_t access, std::uint32_t processId) override;
    std::optional<std::uint32_t> ExitCode(Handle process) override;
    void WaitForEnd(Handle process) override;
    bool Close(Handle process) override;

    struct Started {
        std::string commandLine;
        std::uint32_t creationFlags = 0;
        StartupInfo startup;
        bool waitedFor = false;
        bool closed = false;
    };
    // What was made by Create.
    const std::vector<Started>& All() const { return started_; }

    struct Launched {
        std::string commandLine;
        std::int32_t windowStyle = 0;
        bool operator==(const Launched&) const = default;
    };
    // What was started by Start. Every program is there unless Faults::FailOn says otherwise.
    std::vector<Launched> launched;

    // How a process made by Start runs.
    struct Run {
        static constexpr int Endless = std::numeric_limits<int>::max();

        std::uint32_t exitCode = 0;
        // So often its exit code is asked for in vain; then it has ended. A process that has ended
        // can no more be opened.
        int questions = 1;
    };
    // In the order of `launched`; tests may change them.
    std::vector<Run> runs;
    // Does what the process does, and decides how it runs.
    std::function<Run(const std::string& commandLine)> whenStarted;
    // What was made by Open and not closed.
    int OpenHandles() const;

  private:
    // Ids are multiples of 4, as those of Windows are.
    static constexpr std::uint32_t IdStep = 4;
    // Handles made by Open have numbers behind all those made by Create.
    static constexpr Handle FirstOpened = 0x10000;
    static constexpr std::size_t Closed = static_cast<std::size_t>(-1);

    // nullptr for a handle that is not open.
    Started* Find(Handle process);
    // The place that tells of the run's number; nullptr for a handle that is not open.
    std::size_t* FindOpened(Handle process);

    Journal& journal_;
    Faults& faults_;
    std::vector<Started> started_;
    // The run of each handle made by Open.
    std::vector<std::size_t> opened_;
};

}  // namespace platform::simulated
