#include "platform/win32/memory.h"

#include <windows.h>

#include "runtime/failure.h"

namespace platform::win32 {

std::string Memory::TotalPhysical() const {
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) throw runtime::Failure(runtime::CannotCreateObject);
    return std::to_string(status.ullTotalPhys);
}

}  // namespace platform::win32
