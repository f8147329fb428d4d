#pragma once

#include <map>
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
    void Start(std::string_view commandLine, std::int32_t windowStyle) override;
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

  private:
    // nullptr for a handle that is not open.
    Started* Find(Handle process);

    Journal& journal_;
    Faults& faults_;
    std::vector<Started> started_;
};

}  // namespace platform::simulated
