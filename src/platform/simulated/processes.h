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
    void WaitForEnd(Handle process) override;
    bool Close(Handle process) override;

    struct Started {
        std::string commandLine;
        std::uint32_t creationFlags = 0;
        StartupInfo startup;
        bool waitedFor = false;
        bool closed = false;
    };
    const std::vector<Started>& All() const { return started_; }

  private:
    // nullptr for a handle that is not open.
    Started* Find(Handle process);

    Journal& journal_;
    Faults& faults_;
    std::vector<Started> started_;
};

}  // namespace platform::simulated
