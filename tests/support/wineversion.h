#pragma once

#include <windows.h>

#include <cstdlib>

// The version of the Wine that runs this: 8 for "8.0 (Debian 8.0~repack-4)", and 0 on Windows.
inline int WineVersion() {
    using Function = const char*(CDECL*)();
    const auto version = reinterpret_cast<Function>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
    return version ? std::atoi(version()) : 0;
}
