#pragma once

#include <utility>

namespace runtime {

// Gives a flag a value for as long as it lives, also when what happens meanwhile fails.
class Temporarily {
  public:
    Temporarily(bool& flag, bool value) : flag_(flag), before_(std::exchange(flag, value)) {}
    ~Temporarily() { flag_ = before_; }
    Temporarily(const Temporarily&) = delete;
    Temporarily& operator=(const Temporarily&) = delete;

  private:
    bool& flag_;
    bool before_;
};

}  // namespace runtime
