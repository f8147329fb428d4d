#pragma once

#include <exception>
#include <string>
#include <utility>

namespace cmd {

// What the user gave cannot be used; nothing has been written. A sentence in German, without its
// full stop, and the line of the file where it is one.
class BadInput : public std::exception {
  public:
    explicit BadInput(std::string inputReason, int inputLine = 0)
        : reason(std::move(inputReason)), line(inputLine) {}
    const char* what() const noexcept override { return reason.c_str(); }

    std::string reason;
    int line;
};

}  // namespace cmd
