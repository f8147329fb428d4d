#pragma once

#include <exception>
#include <string>
#include <utility>

namespace runtime {

// A mistake in the program itself, such as a control asked for by a name that is not there. Not
// std::logic_error, which brings two whole kinds of string along: a tenth of the program.
class Mistake : public std::exception {
  public:
    explicit Mistake(std::string what) : what_(std::move(what)) {}
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    std::string what_;
};

}  // namespace runtime
