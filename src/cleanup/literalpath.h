#pragma once

#include <string_view>

namespace cleanup {

// Whether the system takes each part of the path as it is spelled: it drops dots and blanks behind
// a part, and the rest may name another file; it takes some names for devices, whatever their
// extension; and the shell takes signs for many names at once.
bool IsTakenLiterally(std::string_view path);

}  // namespace cleanup
