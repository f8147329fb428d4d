#include "system/shelldelete.h"

#include <cstdint>

#include "platform/shell.h"

namespace sys {

bool ShellDeleteFile(platform::Shell& shell, std::string_view path, bool silent) {
    using platform::Shell;
    const std::uint16_t quiet = silent ? Shell::NoConfirmation : 0;
    const auto flags = static_cast<std::uint16_t>(Shell::NoProgress | Shell::AllowUndo | quiet);
    return shell.OperateOnFiles(Shell::DeleteFiles, path, flags) == 0;
}

}  // namespace sys
