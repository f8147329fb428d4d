#pragma once

#include <string>

namespace platform {

// The memory information object.
class Memory {
  public:
    virtual ~Memory() = default;

    // The total physical memory in bytes, as decimal text; more than 4 GB is told as it is.
    // Throws Failure CannotCreateObject when the system does not answer.
    virtual std::string TotalPhysical() const = 0;
};

}  // namespace platform
