#pragma once

#include <string>

namespace platform {

// The running program itself.
class Program {
  public:
    virtual ~Program() = default;

    // The directory of the executable, without a trailing backslash.
    virtual std::string Directory() const = 0;
    // The executable's name without directory and extension.
    virtual std::string ExecutableName() const = 0;
    // What stands behind the program's name on the command line, with nothing taken off its end.
    virtual std::string CommandLine() const = 0;

    // Ends the process at once. Nothing behind the call runs.
    [[noreturn]] virtual void End() = 0;
};

}  // namespace platform
