#include "endtoend/workplace.h"

#include <windows.h>

#include "endtoend/registryfile.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

constexpr char SettingsStore[] = "Software\\VB and VBA Program Settings\\Quillmore\\";

std::string WineKeyOf(const std::string& executable) {
    return "Software\\Wine\\AppDefaults\\" + executable;
}

std::string NewFolder() {
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    static unsigned count = 0;
    std::string folder;
    do {
        // A run that was broken off leaves its folder, and the system uses its number again.
        if (!folder.empty() && GetLastError() != ERROR_ALREADY_EXISTS) {
            throw Failed("no folder " + folder);
        }
        folder = FromWide(temporary) + "quillmore-" + std::to_string(GetCurrentProcessId()) + '-' +
                 std::to_string(++count);
    } while (!CreateDirectoryW(ToWide(folder).c_str(), nullptr));
    return folder;
}

void RemoveFolder(const std::string& folder) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW(ToWide(folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring path = ToWide(folder) + L'\\' + found.cFileName;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path.c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
    RemoveDirectoryW(ToWide(folder).c_str());
}

void PutKnownState() {
    static const std::string baseline = ReadFile(OwnFolder() + "\\xp-baseline.reg");
    static const std::string catalogue = ReadFile(OwnFolder() + "\\catalogue.tsv");
    PutBaseline(baseline, catalogue);
}

// The prefix is others' when this program ends.
struct PutBack {
    ~PutBack() {
        try {
            PutKnownState();
        } catch (const Failed&) {
            // Whoever needs that state puts it first.
        }
    }
};

}  // namespace

Workplace::Workplace(Warning warning, const std::string& executable)
    : executable_(executable), folder_(NewFolder()) {
    ForgetLeftOverrides();
    PutKnownState();
    static const PutBack atTheEnd;
    // Without a window manager around it Wine would wait two seconds after each message box.
    WriteValue({"HKCU", WineKeyOf(executable_) + "\\X11 Driver", "Managed"}, TerminatedText("N"));
    // The program's own version fields of the registry are options here, so that the version must
    // not hang on them.
    PretendWindows("winxp");
    if (warning == Warning::Accepted) Store("Options", "Accepted", "Yes");
    const std::string original = OwnFolder() + "\\..\\..\\Quillmore.exe";
    if (!CopyFileW(ToWide(original).c_str(), ToWide(Executable()).c_str(), TRUE)) {
        throw Failed("cannot copy " + original);
    }
}

Workplace::~Workplace() {
    RemoveFolder(folder_);
    try {
        DeleteTree("HKCU", WineKeyOf(executable_));
    } catch (const Failed&) {
        // The next workplace meets the same obstacle and says so.
    }
}

void Workplace::PretendWindows(const std::string& version) const {
    WriteValue({"HKCU", WineKeyOf(executable_), "Version"}, TerminatedText(version));
}

void Workplace::Store(const std::string& section, const std::string& key,
                      const std::string& text) const {
    WriteValue({"HKCU", SettingsStore + section, key}, TerminatedText(text));
}

std::string Workplace::Stored(const std::string& section, const std::string& key) const {
    const auto value = ReadValue({"HKCU", SettingsStore + section, key});
    if (!value) return "(absent)";
    if (value->type != REG_SZ) return "(no text)";
    const std::wstring text(reinterpret_cast<const wchar_t*>(value->bytes.data()),
                            value->bytes.size() / sizeof(wchar_t));
    return FromWide(text.c_str());
}

OpenProgram::OpenProgram(const Workplace& workplace, const std::string& arguments)
    : Program(workplace.Executable(), arguments) {
    // Looking for its window while it starts would only take its time.
    WaitIdle();
    Wait("frmMain");
    Until("the start to end", [&] { return Responds("frmMain"); });
}

}  // namespace endtoend
