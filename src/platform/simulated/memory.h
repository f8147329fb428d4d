#pragma once

#include <string>

#include "platform/memory.h"
#include "platform/systeminformation.h"

namespace platform::simulated {

class Faults;
class Journal;

// Memory that is only counted: no block is really taken.
class Memory final : public platform::Memory {
  public:
    Memory(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::string TotalPhysical() const override;
    std::int32_t PhysicalBytes() const override;
    std::unique_ptr<MemoryBlock> Blanks(std::size_t characters) override;

    // The bytes of the blocks that are held, and the most that there ever were.
    std::size_t Held() const { return held_; }
    std::size_t Peak() const { return peak_; }

    // What the machine has, whoever is asked for it.
    PhysicalMemory physical{536330240, 301989888};

  private:
    class Block;

    Journal& journal_;
    Faults& faults_;
    std::size_t held_ = 0;
    std::size_t peak_ = 0;
};

}  // namespace platform::simulated
