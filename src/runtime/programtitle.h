#pragma once

#include <string_view>

namespace runtime {

// The program's name: of its settings, its tray icon and its autostart entry, where it stands alone
// in a caption, and as the source of its failures. Whole sentences spell it out.
inline constexpr std::string_view ProgramTitle = "Quillmore";

}  // namespace runtime
