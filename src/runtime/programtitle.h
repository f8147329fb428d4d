#pragma once

#include <string_view>

namespace runtime {

// The program's name: of its settings, its tray icon and its autostart entry, in the captions of
// its windows and messages, and as the source of its failures.
inline constexpr std::string_view ProgramTitle = "Quillmore";

}  // namespace runtime
