#include "endtoend/console.h"

#include <algorithm>

#include "endtoend/files.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FileHandle;
using platform::win32::FromWide;
using platform::win32::KernelHandle;
using platform::win32::ToWide;

constexpr char ProgramName[] = "QuillmoreCmd.exe";
const std::string WineKey = std::string("Software\\Wine\\AppDefaults\\") + ProgramName;

// One that a program started by us may use.
FileHandle OpenStream(const std::string& path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited = {};
    inherited.nLength = sizeof inherited;
    inherited.bInheritHandle = TRUE;
    FileHandle file(CreateFileW(ToWide(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                &inherited, disposition, 0, nullptr));
    if (!file) throw Failed("cannot open " + path);
    return file;
}

}  // namespace

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

Console::Console(const Workplace& workplace) : folder_(workplace.Folder()) {
    wchar_t temporary[MAX_PATH];
    streams_ = FromWide({temporary, GetTempPathW(MAX_PATH, temporary)}) + "quillmore-" +
               std::to_string(GetCurrentProcessId());
    const std::string original = OwnFolder() + "\\..\\..\\" + ProgramName;
    if (!CopyFileW(ToWide(original).c_str(), ToWide(Path(ProgramName)).c_str(), TRUE)) {
        throw Failed("cannot copy " + original);
    }
    PretendWindows("winxp");
}

Console::~Console() {
    for (const char* stream : {".in", ".out", ".err"}) {
        DeleteFileW(ToWide(streams_ + stream).c_str());
    }
    try {
        DeleteTree("HKCU", WineKey);
    } catch (const Failed&) {
        // The next one writes the same there.
    }
}

ConsoleRun Console::Run(const std::string& arguments, const std::string& input) const {
    WriteFile(streams_ + ".in", input);
    KernelHandle process;
    {
        const FileHandle in = OpenStream(streams_ + ".in", GENERIC_READ, OPEN_EXISTING);
        const FileHandle out = OpenStream(streams_ + ".out", GENERIC_WRITE, CREATE_ALWAYS);
        const FileHandle err = OpenStream(streams_ + ".err", GENERIC_WRITE, CREATE_ALWAYS);
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = in.Get();
        startup.hStdOutput = out.Get();
        startup.hStdError = err.Get();
        std::wstring line = ToWide(std::string(ProgramName) + ' ' + arguments);
        PROCESS_INFORMATION started = {};
        if (!CreateProcessW(ToWide(Path(ProgramName)).c_str(), line.data(), nullptr, nullptr, TRUE,
                            DETACHED_PROCESS, nullptr, ToWide(folder_).c_str(), &startup,
                            &started)) {
            throw Failed("cannot start " + Path(ProgramName));
        }
        CloseHandle(started.hThread);
        process.Reset(started.hProcess);
    }
    if (WaitForSingleObject(process.Get(), Patience) != WAIT_OBJECT_0) {
        TerminateProcess(process.Get(), 99);
        throw Failed("QuillmoreCmd " + arguments + " does not end");
    }
    ConsoleRun run;
    GetExitCodeProcess(process.Get(), &run.code);
    run.out = ReadFile(streams_ + ".out");
    run.err = ReadFile(streams_ + ".err");
    return run;
}

std::vector<std::string> Console::Files() const {
    std::vector<std::string> files;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW(ToWide(folder_ + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        const std::string name = FromWide(found.cFileName);
        if (name != "." && name != "..") files.push_back(name);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(files.begin(), files.end());
    return files;
}

void Console::PretendWindows(const std::string& version) const {
    WriteValue({"HKCU", WineKey, "Version"}, TerminatedText(version));
}

}  // namespace endtoend
