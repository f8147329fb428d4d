#include "platform/simulated/memory.h"

#include <algorithm>
#include <limits>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/failure.h"

namespace platform::simulated {
namespace {

// Two gigabytes: more than a program has room for.
constexpr std::size_t MostCharacters = 1000000000;

}  // namespace

class Memory::Block final : public MemoryBlock {
  public:
    Block(Memory& memory, std::size_t characters) : memory_(memory), bytes_(2 * characters) {
        memory_.held_ += bytes_;
        memory_.peak_ = std::max(memory_.peak_, memory_.held_);
    }
    ~Block() override {
        memory_.held_ -= bytes_;
        memory_.journal_.Note([] { return std::string("Memory.GiveBack"); });
    }

  private:
    Memory& memory_;
    std::size_t bytes_;
};

std::string Memory::TotalPhysical() const {
    auto line = journal_.Note([] { return std::string("Memory.TotalPhysical"); });
    PassOrThrow(journal_, faults_, line, "Memory.TotalPhysical", "");
    const std::string total = std::to_string(physical.total);
    journal_.Finish(line, [&] { return Quoted(total); });
    return total;
}

std::int32_t Memory::PhysicalBytes() const {
    auto line = journal_.Note([] { return std::string("GlobalMemoryStatus"); });
    constexpr std::uint64_t Most = std::numeric_limits<std::uint32_t>::max();
    const auto told = static_cast<std::uint32_t>(std::min(physical.total, Most));
    const std::int32_t bytes =
        faults_.Check("GlobalMemoryStatus", "") ? 0 : static_cast<std::int32_t>(told);
    journal_.Finish(line, [&] { return std::to_string(bytes); });
    return bytes;
}

std::unique_ptr<MemoryBlock> Memory::Blanks(std::size_t characters) {
    auto line = journal_.Note([&] { return "Memory.Blanks " + std::to_string(characters); });
    PassOrThrow(journal_, faults_, line, "Memory.Blanks", "");
    if (characters > MostCharacters) ThrowFault(journal_, line, runtime::OutOfMemory);
    return std::make_unique<Block>(*this, characters);
}

}  // namespace platform::simulated
