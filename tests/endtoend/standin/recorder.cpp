// Stands in for a tool of the system. It notes how it was started, so that a test sees what the
// program asked for, and does nothing else.
#include "endtoend/standin/recorder.h"

#include <windows.h>

#include <string>

namespace {

std::wstring OwnPath() {
    wchar_t path[MAX_PATH];
    return {path, GetModuleFileNameW(nullptr, path, MAX_PATH)};
}

std::wstring WorkingDirectory() {
    wchar_t path[MAX_PATH];
    return {path, GetCurrentDirectoryW(MAX_PATH, path)};
}

std::wstring AskedShow() {
    STARTUPINFOW startup = {};
    GetStartupInfoW(&startup);
    if (!(startup.dwFlags & STARTF_USESHOWWINDOW)) return L"-";
    return std::to_wstring(startup.wShowWindow);
}

// Under another name first: whoever finds the record finds it complete.
void Write(const std::wstring& path, const std::wstring& text) {
    const std::wstring unfinished = path + L".part";
    HANDLE file = CreateFileW(unfinished.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &written,
              nullptr);
    CloseHandle(file);
    MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    Write(OwnPath() + endtoend::RecordSuffix,
          GetCommandLineW() + (L'\n' + WorkingDirectory()) + L'\n' + AskedShow());
    HANDLE mayEnd = OpenEventW(SYNCHRONIZE, FALSE, endtoend::MayEnd);
    if (!mayEnd) return 0;
    const DWORD result = WaitForSingleObject(mayEnd, 30000);
    CloseHandle(mayEnd);
    return result == WAIT_OBJECT_0 ? 0 : 1;
}
