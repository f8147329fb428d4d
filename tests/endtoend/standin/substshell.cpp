// Stands in for the hidden command shell. It notes each command line and carries out the commands
// that the program hands to it: `subst` with a drive and a folder, with a drive and /d, and without
// arguments, its output into a file. The drives are real ones of this Windows.
#include "endtoend/standin/substshell.h"

#include <windows.h>

#include <string>

namespace {

std::wstring BesideShell(const wchar_t* suffix) {
    wchar_t path[MAX_PATH];
    return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH)) + suffix;
}

// Nothing where there is no such file.
std::string Read(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "";
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes;
}

bool WriteOut(const std::wstring& path, const std::string& bytes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return true;
}

void NoteCall(const std::string& line) {
    const std::wstring log = BesideShell(endtoend::SubstLog);
    WriteOut(log, Read(log) + line + '\n');
}

// What Wine's mount manager takes: as long as it is, a letter, and where in it the path stands in
// the words of the system around Wine; 0 takes the drive away.
struct UnixDrive {
    ULONG size = 0;
    ULONG type = DRIVE_FIXED;
    ULONG fileSystem = 0;
    DWORD serial = 0;
    ULONGLONG device = 0;
    WCHAR letter = 0;
    USHORT pathOffset = 0;
    USHORT deviceOffset = 0;
    USHORT labelOffset = 0;
};

// In Wine the call for this, DefineDosDevice, makes no drive that anybody could use.
bool SetDrive(char letter, const std::string& unixPath) {
    constexpr DWORD defineUnixDrive = 0x6D << 16 | 3 << 14 | 32 << 2;
    UnixDrive drive;
    drive.letter = static_cast<WCHAR>(letter);
    if (!unixPath.empty()) drive.pathOffset = sizeof drive;
    drive.size = static_cast<ULONG>(sizeof drive + unixPath.size() + 1);
    std::string request(reinterpret_cast<const char*>(&drive), sizeof drive);
    request += unixPath + '\0';
    HANDLE manager =
        CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD returned = 0;
    const BOOL done =
        DeviceIoControl(manager, defineUnixDrive, request.data(),
                        static_cast<DWORD>(request.size()), nullptr, 0, &returned, nullptr);
    CloseHandle(manager);
    return done != FALSE;
}

std::string UnixPath(const std::string& folder) {
    using Function = char*(CDECL*)(LPCWSTR);
    const auto function = reinterpret_cast<Function>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    wchar_t wide[MAX_PATH] = L"";
    MultiByteToWideChar(CP_ACP, 0, folder.c_str(), -1, wide, MAX_PATH);
    char* name = function(wide);
    const std::string path = name ? name : "";
    HeapFree(GetProcessHeap(), 0, name);
    return path;
}

// "E:" and what it stands for, a line each, as the command tells them.
bool Define(const std::string& drive, const std::string& folder) {
    const std::string path = UnixPath(folder);
    if (path.empty() || !SetDrive(drive[0], path)) return false;
    const std::wstring list = BesideShell(endtoend::SubstDrives);
    return WriteOut(list, Read(list) + drive + "\\: => " + folder + "\r\n");
}

bool Remove(const std::string& drive) {
    std::string list = Read(BesideShell(endtoend::SubstDrives));
    const std::size_t start = list.find(drive + "\\:");
    if (start == std::string::npos || !SetDrive(drive[0], "")) return false;
    list.erase(start, list.find('\n', start) + 1 - start);
    return WriteOut(BesideShell(endtoend::SubstDrives), list);
}

bool List(const std::string& file) {
    const std::string prepared = Read(BesideShell(endtoend::SubstOutput));
    return WriteOut({file.begin(), file.end()},
                    prepared.empty() ? Read(BesideShell(endtoend::SubstDrives)) : prepared);
}

bool Run(const std::string& arguments) {
    const std::string drive = arguments.substr(0, 2);
    if (drive == "> ") return List(arguments.substr(2));
    if (arguments.substr(2) == " /d") return Remove(drive);
    return Define(drive, arguments.substr(3));
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    STARTUPINFOA startup = {};
    GetStartupInfoA(&startup);
    const bool isHidden =
        (startup.dwFlags & STARTF_USESHOWWINDOW) && startup.wShowWindow == SW_HIDE;
    const std::string line = GetCommandLineA();
    NoteCall(isHidden ? line : "shown: " + line);
    const std::string word = "/csubst ";
    const std::size_t start = line.find(word);
    if (start == std::string::npos) return 0;
    return Run(line.substr(start + word.size())) ? 0 : 1;
}
