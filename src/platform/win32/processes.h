#pragma once

#include "platform/processes.h"

namespace platform::win32 {

class Processes final : public platform::Processes {
  public:
    Handle Create(std::string_view commandLine, std::uint32_t creationFlags,
                  const StartupInfo& startup) override;
    std::uint32_t Start(std::string_view commandLine, std::int32_t windowStyle) override;
    Handle Open(std::uint32_t access, std::uint32_t processId) override;
    std::optional<std::uint32_t> ExitCode(Handle process) override;
    void WaitForEnd(Handle process) override;
    bool Close(Handle process) override;
};

}  // namespace platform::win32
