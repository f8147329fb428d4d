#pragma once

#include <windows.h>

namespace platform::win32 {

// A function of a library that comes when it is first asked for, and stays: the program hardly ever
// needs these, and every start would have to load them. Nothing where there is none.
template <typename Function>
Function* LibraryFunction(const wchar_t* library, const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name)));
}

}  // namespace platform::win32
