#pragma once

#include <string_view>

namespace platform {

// Message boxes. A style is the sum of a button code and an icon code.
namespace message {
inline constexpr int OkCancel = 1;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;

inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace message

class Messages {
  public:
    virtual ~Messages() = default;

    // Shows the box over the program's active window and returns the answer's code, or 0, which is
    // no answer, when the box cannot be shown: nothing is written, removed, started or closed for
    // it. Line ends in the text are CR LF.
    virtual int Show(std::string_view text, int style, std::string_view title) = 0;
};

}  // namespace platform
