#include <windows.h>

#include <lm.h>

#include "platform/win32/libraryfunction.h"
#include "platform/win32/workstation.h"

namespace platform::win32 {
namespace {

DWORD WINAPI EnumerateInLibrary(LPWSTR server, DWORD level, LPBYTE* buffer, DWORD longest,
                                LPDWORD read, LPDWORD total, LPDWORD resume) {
    const auto enumerate =
        LibraryFunction<decltype(NetWkstaUserEnum)>(L"netapi32.dll", "NetWkstaUserEnum");
    return enumerate ? enumerate(server, level, buffer, longest, read, total, resume)
                     : ERROR_PROC_NOT_FOUND;
}

DWORD WINAPI FreeInLibrary(LPVOID buffer) {
    const auto free =
        LibraryFunction<decltype(NetApiBufferFree)>(L"netapi32.dll", "NetApiBufferFree");
    return free ? free(buffer) : ERROR_PROC_NOT_FOUND;
}

}  // namespace

// Apart from the rest of the class, so that a program can be linked that asks somebody else.
Workstation::Workstation() : Workstation(EnumerateInLibrary, FreeInLibrary) {}

}  // namespace platform::win32
