#pragma once

#include "platform/program.h"

namespace platform::win32 {

// What stands behind the program's name and the blanks after it. The name may be quoted, as a whole
// or in part.
std::wstring_view ArgumentsOf(std::wstring_view commandLine);

class Program final : public platform::Program {
  public:
    std::string Directory() const override;
    std::string ExecutableName() const override;
    std::string CommandLine() const override;
    [[noreturn]] void End() override;
};

}  // namespace platform::win32
