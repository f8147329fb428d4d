// Stands in for the system's restore wizard, which Wine lacks. It notes its command line, so that a
// test sees how it was called, and runs until the test lets it end.
#include <windows.h>

#include <string>

#include "endtoend/standin/restorewizard.h"

namespace {

void NoteCommandLine() {
    wchar_t path[MAX_PATH];
    std::wstring record(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    record = record.substr(0, record.find_last_of(L'\\') + 1) + endtoend::WizardRecord;
    const std::wstring line = GetCommandLineW();
    HANDLE file = CreateFileW(record.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size() * sizeof(wchar_t)), &written,
              nullptr);
    CloseHandle(file);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    NoteCommandLine();
    HANDLE mayEnd = OpenEventW(SYNCHRONIZE, FALSE, endtoend::WizardMayEnd);
    if (!mayEnd) return 1;
    const DWORD result = WaitForSingleObject(mayEnd, 30000);
    CloseHandle(mayEnd);
    return result == WAIT_OBJECT_0 ? 0 : 1;
}
