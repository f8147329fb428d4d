#pragma once

#include "platform/program.h"

namespace platform::simulated {

class Journal;

// Thrown instead of the end of the process, so that a test lives on. It is no Failure: no policy
// of the program catches it.
struct ProgramEnded {};

class Program final : public platform::Program {
  public:
    explicit Program(Journal& journal) : journal_(journal) {}

    std::string Directory() const override { return directory; }
    std::string ExecutableName() const override { return executableName; }
    std::string CommandLine() const override { return commandLine; }
    [[noreturn]] void End() override;

    std::string directory = "C:\\Programme\\Quillmore";
    std::string executableName = "Quillmore";
    std::string commandLine;
    bool ended = false;

  private:
    Journal& journal_;
};

}  // namespace platform::simulated
