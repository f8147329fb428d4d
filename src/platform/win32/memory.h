#pragma once

#include "platform/memory.h"

namespace platform::win32 {

class Memory final : public platform::Memory {
  public:
    std::string TotalPhysical() const override;
    std::int32_t PhysicalBytes() const override;
    std::unique_ptr<MemoryBlock> Blanks(std::size_t characters) override;
};

}  // namespace platform::win32
