// Takes the place of the session in a build of the program that is otherwise the real one, and so
// cannot end the session: what the program asks for goes into a file beside it, a line each, the
// action and whether it is forced. The linker takes this instead of the library's own.
#include <windows.h>

#include <cstdio>
#include <string>

#include "platform/win32/session.h"

namespace platform::win32 {

void Session::ExitSession(std::int32_t action, std::int32_t force) {
    wchar_t path[MAX_PATH];
    const std::wstring own(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    std::FILE* file = _wfopen((own + L".session").c_str(), L"ab");
    std::fprintf(file, "%d %d\n", static_cast<int>(action), static_cast<int>(force));
    std::fclose(file);
}

}  // namespace platform::win32
