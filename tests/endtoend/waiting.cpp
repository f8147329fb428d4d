#include "endtoend/waiting.h"

#include <windows.h>

namespace endtoend {

void Until(const std::string& what, const std::function<bool()>& come, unsigned patience) {
    // The tick count is unsigned, so the difference is right even when the count wraps around.
    const DWORD begin = GetTickCount();
    while (!come()) {
        if (GetTickCount() - begin > patience) throw Failed("waited in vain for " + what);
        Sleep(Step);
    }
}

}  // namespace endtoend
