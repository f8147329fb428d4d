#include "system/shelldelete.h"

#include <cstdint>

#include "platform/shell.h"

namespace sys {

bool ShellDeleteFile(platform::Shell& shell, std::string_view path, bool silent) {
    constexpr std::uint32_t deletion = 3;
    constexpr std::uint16_t noProgress = 0x04;
    constexpr std::uint16_t noConfirmation = 0x10;
    constexpr std::uint16_t allowUndo = 0x40;
    const std::uint16_t quiet = silent ? noConfirmation : 0;
    const auto flags = static_cast<std::uint16_t>(noProgress | allowUndo | quiet);
    return shell.OperateOnFiles(deletion, path, flags) == 0;
}

}  // namespace sys
