#include "platform/win32/memory.h"

#include <windows.h>

#include <new>
#include <string>

#include "runtime/failure.h"

namespace platform::win32 {
namespace {

// A block as large as this comes from the system itself and goes back to it at once.
struct BlankText final : MemoryBlock {
    explicit BlankText(std::size_t characters) : text(characters, u' ') {}
    std::u16string text;
};

}  // namespace

std::string Memory::TotalPhysical() const {
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) throw runtime::Failure(runtime::CannotCreateObject);
    return std::to_string(status.ullTotalPhys);
}

// The call has no failure; a field that it leaves alone stays 0.
std::int32_t Memory::PhysicalBytes() const {
    MEMORYSTATUS status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    return static_cast<std::int32_t>(status.dwTotalPhys);
}

std::unique_ptr<MemoryBlock> Memory::Blanks(std::size_t characters) {
    try {
        if (characters > std::u16string().max_size()) throw std::bad_alloc();
        return std::make_unique<BlankText>(characters);
    } catch (const std::bad_alloc&) {
        throw runtime::Failure(runtime::OutOfMemory);
    }
}

}  // namespace platform::win32
