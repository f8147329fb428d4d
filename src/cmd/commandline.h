#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cmd {

// The arguments of a command line, without the program's name, which stands first in it: as the C
// run-time library of the system splits it, but with every character kept, while that one knows
// only those of the ANSI code page.
//
// Blanks and tabs part arguments unless they are quoted. Backslashes before a quote are halved, and
// an odd one makes the quote a character of the argument. Two quotes within a quoted part are one
// such character and the end of the part.
std::vector<std::string> SplitCommandLine(std::string_view line);

}  // namespace cmd
