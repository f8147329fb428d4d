#pragma once

#include <string>
#include <string_view>

// Text at the door of Windows: UTF-8 inside the program, UTF-16 for calls that end in W, the
// system's ANSI code page for calls that end in A.
namespace platform::win32 {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// A character that the code page lacks becomes its nearest letter or a question mark; one outside
// the 16-bit plane becomes two.
std::string ToAnsi(std::string_view text);
std::string FromAnsi(std::string_view bytes);

}  // namespace platform::win32
