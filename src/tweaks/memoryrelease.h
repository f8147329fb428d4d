#pragma once

#include <cstddef>
#include <string_view>

namespace platform {
class Locale;
class Memory;
}  // namespace platform
namespace runtime {
struct NumberSigns;
}
namespace toolkit {
class FormHost;
}

namespace tweaks {

// How large a block, in characters of two bytes, presses the system hard without pressing it to
// death: by the text of its total physical memory. A text that is no number counts as little.
std::size_t BlockSizeFor(std::string_view totalPhysical, const runtime::NumberSigns& signs);

// Takes one large block of memory for a moment, which makes the system give up what other programs
// hold idle, and gives it back. The screen's hourglass alone tells of it: a block that cannot
// be had is passed over in silence.
void ReleaseMemory(toolkit::FormHost& forms, platform::Memory& memory,
                   const platform::Locale& locale);

}  // namespace tweaks
