#include "tweaks/memoryrelease.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/memory.h"
#include "toolkit/form.h"

namespace {

// The real memory, which tells of less than there is, so that the block stays small, and looks at
// what the program holds once it has the block.
class SmallMemory final : public platform::Memory {
  public:
    explicit SmallMemory(contract::TestMachine& machine) : machine_(machine) {}

    std::string TotalPhysical() const override { return total; }
    std::int32_t PhysicalBytes() const override {
        return machine_.Services().memory.PhysicalBytes();
    }
    std::unique_ptr<platform::MemoryBlock> Blanks(std::size_t characters) override {
        asked = characters;
        auto block = machine_.Services().memory.Blanks(refuses ? 0x7FFFFFFF : characters);
        peak = machine_.ResidentBytes();
        return block;
    }

    std::string total = "128000000";
    bool refuses = false;
    std::size_t asked = 0;
    std::size_t peak = 0;

  private:
    contract::TestMachine& machine_;
};

struct WindowsMemoryReleaseFixture {
    contract::TestMachine machine;
    SmallMemory memory{machine};

    void Release() {
        tweaks::ReleaseMemory(machine.Services().forms, memory, machine.Services().locale);
    }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsMemoryReleaseFixture,
                  "what the program holds rises by the block and falls back") {
    constexpr double bytes = 40000000;
    for (int press = 1; press <= 2; ++press) {
        CAPTURE(press);
        const auto before = static_cast<double>(machine.ResidentBytes());
        Release();
        CHECK(memory.asked == 20000000);
        CHECK(static_cast<double>(memory.peak) - before > 0.98 * bytes);
        CHECK(static_cast<double>(machine.ResidentBytes()) - before < 0.02 * bytes);
    }
}

TEST_CASE_FIXTURE(WindowsMemoryReleaseFixture, "a system that refuses the block is left in peace") {
    memory.refuses = true;
    CHECK_NOTHROW(Release());
    CHECK(memory.asked == 20000000);
    CHECK(memory.peak == 0);
    CHECK(machine.Services().forms.ScreenPointer() == toolkit::DefaultPointer);
}
