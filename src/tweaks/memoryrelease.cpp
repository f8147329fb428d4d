#include "tweaks/memoryrelease.h"

#include <memory>
#include <string>

#include "platform/locale.h"
#include "platform/memory.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "toolkit/form.h"

namespace tweaks {
namespace {

using runtime::Skip;

// Half of the physical memory, in bytes, that must be exceeded for a block of that size. The limits
// are decimal: about 512, 256 and 128 MB of memory in round figures.
struct Share {
    double halfAbove;
    std::size_t characters;
};

constexpr Share Shares[] = {
    {256000000, 120000000},
    {128000000, 90000000},
    {64000000, 48000000},
};
constexpr std::size_t SmallestBlock = 20000000;

}  // namespace

std::size_t BlockSizeFor(std::string_view totalPhysical, const runtime::NumberSigns& signs) {
    const double half = runtime::ParseNumber(totalPhysical, signs).value_or(0) / 2;
    for (const Share& share : Shares) {
        if (half > share.halfAbove) return share.characters;
    }
    return SmallestBlock;
}

void ReleaseMemory(toolkit::FormHost& forms, platform::Memory& memory,
                   const platform::Locale& locale) {
    // Goes after the hourglass.
    std::unique_ptr<platform::MemoryBlock> block;
    const toolkit::ScreenHourglass hourglass{forms};
    std::string total;
    Skip([&] { total = memory.TotalPhysical(); });
    Skip([&] { block = memory.Blanks(BlockSizeFor(total, locale.Signs())); });
}

}  // namespace tweaks
