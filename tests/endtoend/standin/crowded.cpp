// Takes the place of the service that tells who is logged on, in a build of the program that is
// otherwise the real one. A file beside the program holds the code with which the service fails;
// without one it tells of a crowd in two batches. The linker takes this instead of the library's
// own.
#include <windows.h>

#include <lm.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/win32/workstation.h"

namespace {

// 0 when there is none.
DWORD FailureCode() {
    wchar_t path[MAX_PATH];
    const std::wstring own(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    char code[16] = "";
    if (std::FILE* file = _wfopen((own + L".users").c_str(), L"rb")) {
        code[std::fread(code, 1, sizeof code - 1, file)] = '\0';
        std::fclose(file);
    }
    return static_cast<DWORD>(std::atoi(code));
}

wchar_t earlier[] = L"fr\u00FCher";
wchar_t owner[] = L"Besitzer";
wchar_t guest[] = L"G\u00E4ste & Co";
wchar_t service[] = L"LOKALER DIENST";
wchar_t authority[] = L"NT-AUTORIT\u00C4T";
wchar_t computer[] = L"PC-1";
wchar_t asked[MAX_PATH];

DWORD WINAPI TellCrowd(LPWSTR server, DWORD, LPBYTE* buffer, DWORD, LPDWORD read, LPDWORD total,
                       LPDWORD resume) {
    *buffer = nullptr;
    *read = *total = 0;
    if (const DWORD code = FailureCode()) return code;
    // The second record names the computer that was asked.
    lstrcpynW(asked, server, MAX_PATH);
    const WKSTA_USER_INFO_1 first[] = {{earlier, computer, nullptr, nullptr}};
    const WKSTA_USER_INFO_1 last[] = {
        {owner, computer, nullptr, computer},   {owner, asked, nullptr, nullptr},
        {guest, nullptr, nullptr, nullptr},     {nullptr, computer, nullptr, nullptr},
        {service, authority, nullptr, nullptr}, {owner, computer, nullptr, computer}};
    const bool more = *resume == 0;
    const void* records = more ? first : last;
    const DWORD size = more ? sizeof first : sizeof last;
    void* memory = nullptr;
    NetApiBufferAllocate(size, &memory);
    std::memcpy(memory, records, size);
    *buffer = static_cast<BYTE*>(memory);
    *read = *total = size / sizeof *first;
    *resume = more ? 1 : 0;
    return more ? ERROR_MORE_DATA : 0;
}

}  // namespace

namespace platform::win32 {

Workstation::Workstation() : Workstation(TellCrowd, NetApiBufferFree) {}

}  // namespace platform::win32
