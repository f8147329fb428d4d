#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "toolkit/geometry.h"

namespace platform::win32 {

// A caption as it is seen: without the ampersands that mark access keys, a doubled one as one.
std::wstring WithoutAccessMarks(std::string_view caption);

// The size of one line in the font that is selected into `dc`, as it is seen.
toolkit::Size ExtentOf(HDC dc, std::string_view caption);

}  // namespace platform::win32
