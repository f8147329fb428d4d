#pragma once

#include <windows.h>

#include <shlobj.h>

#include <optional>
#include <string>

#include "platform/win32/com.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace platform::win32 {

struct IdListTraits {
    using Type = PIDLIST_ABSOLUTE;
    static Type None() { return nullptr; }
    static bool Close(Type list) {
        FreeTaskMemory(list);
        return true;
    }
};

// A place in the shell's tree.
using IdList = Owned<IdListTraits>;

// Nothing for no place, and for one that is not in the file system.
inline std::optional<std::string> PathOf(PCIDLIST_ABSOLUTE list) {
    char buffer[MAX_PATH] = "";
    if (!list || !SHGetPathFromIDListA(list, buffer)) return std::nullopt;
    return FromAnsi(buffer);
}

}  // namespace platform::win32
