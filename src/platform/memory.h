#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace platform {

// A block of memory that the program holds; its end gives the block back to the system.
class MemoryBlock {
  public:
    virtual ~MemoryBlock() = default;
};

// The memory information object, and memory in large blocks.
class Memory {
  public:
    virtual ~Memory() = default;

    // The total physical memory in bytes, as decimal text; more than 4 GB is told as it is.
    // Throws Failure CannotCreateObject when the system does not answer.
    virtual std::string TotalPhysical() const = 0;

    // The field dwTotalPhys of GlobalMemoryStatus as a signed number: bytes of physical memory, at
    // most 2147483647 or, where the system tells more than that, negative. 0 when the system does
    // not answer.
    virtual std::int32_t PhysicalBytes() const = 0;

    // One text of that many blanks, at two bytes a character. Each page of it is really written,
    // so the system has to find the memory. Throws Failure OutOfMemory when there is none to have.
    virtual std::unique_ptr<MemoryBlock> Blanks(std::size_t characters) = 0;
};

}  // namespace platform
