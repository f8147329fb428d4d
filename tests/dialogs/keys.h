#pragma once

namespace dialogs_test {

// What a list is told of the keyboard.
inline constexpr int KeyDelete = 46;
inline constexpr int KeyF5 = 116;

}  // namespace dialogs_test
