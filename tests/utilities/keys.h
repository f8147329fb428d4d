#pragma once

namespace utilities_test {

// What a list is told of the keyboard.
inline constexpr int KeyDelete = 46;
inline constexpr int KeyF5 = 116;

}  // namespace utilities_test
