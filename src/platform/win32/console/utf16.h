#pragma once

#include <string>
#include <string_view>

// Text at the door of Windows' wide calls. Unlike the conversion of platform/win32/text.h this one
// lets half a pair of surrogates through, which a name or a path may have.
namespace platform::win32 {

// Throws runtime::Mistake for what is no UTF-8.
std::wstring ToUnits(std::string_view text);
std::string FromUnits(std::wstring_view units);

}  // namespace platform::win32
