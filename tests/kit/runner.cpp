// Runs what is harmless of the suites on the machine it finds itself on, writes Ergebnis.txt and
// takes away all else that it and the suites made.
//   Pruefung.exe [PART]
// PART is 1 for all of the harmless cases; otherwise each PARTth of those that do not take long.
#include <windows.h>

#include <shlwapi.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "kit/cases.h"
#include "kit/facts.h"
#include "kit/imports.h"
#include "kit/report.h"
#include "kit/runs.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace {

using platform::win32::FileHandle;
using platform::win32::FromWide;
using platform::win32::ToWide;

constexpr wchar_t Scratch[] = L"Software\\QuillmoreContract";
constexpr wchar_t Settings[] = L"Software\\VB and VBA Program Settings";
constexpr wchar_t SettingsScratch[] = L"Software\\VB and VBA Program Settings\\QuillmoreContract";

volatile bool stopped = false;

BOOL WINAPI Stop(DWORD) {
    stopped = true;
    return TRUE;
}

// On the console in its characters; elsewhere in UTF-8.
void Say(const std::string& text) {
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    DWORD written = 0;
    const std::wstring wide = ToWide(text);
    if (GetConsoleMode(output, &mode)) {
        WriteConsoleW(output, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }
}

std::string ContentOf(const std::wstring& path) {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr));
    if (!file) return "";
    std::string bytes(GetFileSize(file.Get(), nullptr), '\0');
    DWORD read = 0;
    ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    return bytes;
}

bool Write(const std::wstring& path, const std::string& bytes) {
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    return file &&
           WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                     nullptr) &&
           written == bytes.size();
}

// Where this program lies, with a backslash at the end.
std::wstring OwnFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    return folder.substr(0, folder.rfind(L'\\') + 1);
}

// Whatever is in it, but not what a link in it leads to.
void RemoveFolder(const std::wstring& folder) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found)) {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        const std::wstring path = folder + name;
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
            SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(path.c_str());
        } else if (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) {
            RemoveDirectoryW(path.c_str());
        } else {
            SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
            RemoveFolder(path + L'\\');
        }
    }
    if (search != INVALID_HANDLE_VALUE) FindClose(search);
    RemoveDirectoryW(folder.c_str());
}

// A folder of its own below %TEMP%, which is that for the suites, and the keys below which they
// write.
class Traces {
  public:
    Traces() {
        wchar_t temp[MAX_PATH] = L"";
        GetTempPathW(MAX_PATH, temp);
        for (int number = 1; number < 100 && folder_.empty(); ++number) {
            const std::wstring folder = temp + (L"Quillmore-Pruefung-" + std::to_wstring(number));
            if (CreateDirectoryW(folder.c_str(), nullptr)) folder_ = folder + L'\\';
        }
        const std::wstring told = folder_.substr(0, folder_.size() - !folder_.empty());
        SetEnvironmentVariableW(L"TMP", told.c_str());
        SetEnvironmentVariableW(L"TEMP", told.c_str());
        settingsWereThere_ = IsThere(Settings);
    }
    ~Traces() {
        SHDeleteKeyW(HKEY_CURRENT_USER, Scratch);
        SHDeleteKeyW(HKEY_CURRENT_USER, SettingsScratch);
        // Only when nobody else has put anything below it.
        if (!settingsWereThere_) SHDeleteEmptyKeyW(HKEY_CURRENT_USER, Settings);
        // Programs that have just ended may hold something for a moment.
        for (int tries = 0; tries < 50 && !folder_.empty(); ++tries) {
            RemoveFolder(folder_);
            if (GetFileAttributesW(folder_.c_str()) == INVALID_FILE_ATTRIBUTES) break;
            Sleep(100);
        }
    }
    Traces(const Traces&) = delete;
    Traces& operator=(const Traces&) = delete;

    // Empty when none could be made.
    const std::wstring& Folder() const { return folder_; }

  private:
    static bool IsThere(const wchar_t* path) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) {
            return false;
        }
        RegCloseKey(key);
        return true;
    }

    std::wstring folder_;
    bool settingsWereThere_ = true;
};

// Why the case is not run; nothing when it is.
std::optional<std::string> Obstacle(const kit::Case& is, const kit::Facts& facts) {
    if (is.condition == "runs") return std::nullopt;
    if (is.condition == "german" && facts.isGerman) return std::nullopt;
    if (is.condition == "links" && facts.knowsLinks) return std::nullopt;
    return is.reason;
}

std::string Imports(const char* name, const std::wstring& path) {
    std::string line = std::string("Importe von ") + name + ": ";
    const auto missing = kit::MissingImports(ContentOf(path));
    if (missing.empty()) return line + "alle vorhanden";
    line += "ES FEHLEN";
    for (const std::string& import : missing) line += ' ' + import;
    return line;
}

std::string Now() {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    const auto two = [](WORD number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return std::to_string(now.wYear) + '-' + two(now.wMonth) + '-' + two(now.wDay) + ' ' +
           two(now.wHour) + ':' + two(now.wMinute);
}

// What is in the way of trying at all, and "" where nothing is.
std::string Hindrance(std::size_t cases, const std::wstring& folder) {
    if (cases == 0) return "Die Liste Faelle.txt fehlt.";
    if (folder.empty()) return "Unter %TEMP% lässt sich kein Ordner anlegen.";
    // The suites would take its hidden windows for their own.
    if (FindWindowW(L"QuillmoreHidden", nullptr)) return "Bitte zuerst Quillmore beenden.";
    return "";
}

bool Try(const std::wstring& programs, std::size_t part, std::string& report) {
    std::vector<kit::Tried> tried;
    for (kit::Case& is : kit::CasesOf(ContentOf(programs + L"Faelle.txt"))) {
        tried.emplace_back().is = std::move(is);
    }
    const Traces traces;
    if (const std::string hindrance = Hindrance(tried.size(), traces.Folder());
        !hindrance.empty()) {
        Say(hindrance + '\n');
        return false;
    }
    const kit::Facts facts = kit::LookAround(traces.Folder());
    std::vector<kit::Tried*> harmless;
    std::size_t number = 0;
    for (kit::Tried& each : tried) {
        if (const auto obstacle = Obstacle(each.is, facts)) {
            each.notes = {*obstacle};
        } else if (part > 1 && (each.is.kind == "long" || ++number % part != 0)) {
            each.notes = {"nur eine Stichprobe"};
        } else {
            harmless.push_back(&each);
        }
    }
    std::vector<std::string> head{"Stand: " + Now()};
    head.insert(head.end(), facts.lines.begin(), facts.lines.end());
    head.push_back(Imports("Quillmore.exe", programs + L"..\\Quillmore.exe"));
    for (const char* name : {"test_contract.exe", "test_windows.exe"}) {
        head.push_back(Imports(name, programs + ToWide(name)));
    }
    for (const std::string& line : head) Say(line + '\n');

    kit::Runs runs;
    runs.programs = programs;
    runs.folder = traces.Folder();
    runs.stops = [] { return stopped; };
    runs.progress = [](std::size_t done, std::size_t of) {
        if (done % 25 == 0 || done == of) {
            Say("Fall " + std::to_string(done) + " von " + std::to_string(of) + '\n');
        }
    };
    const DWORD began = GetTickCount();
    kit::RunAll(runs, harmless);
    head.push_back("Dauer: " + std::to_string((GetTickCount() - began) / 1000) + " s");
    report = kit::Report(head, tried);
    return std::all_of(harmless.begin(), harmless.end(), [](const kit::Tried* each) {
        return each->verdict == kit::Verdict::Passed;
    });
}

}  // namespace

int main(int count, char** arguments) {
    SetConsoleCtrlHandler(Stop, TRUE);
    // A program that crashes ends without a question.
    SetErrorMode(SEM_NOGPFAULTERRORBOX);
    const auto part =
        static_cast<std::size_t>(count > 1 ? std::max(std::atoi(arguments[1]), 1) : 1);
    const std::wstring programs = OwnFolder();
    std::string report;
    const bool allPassed = Try(programs, part, report);
    if (report.empty()) return 2;
    // A medium that cannot be written leaves the user's own folder.
    std::wstring path = programs + L"..\\Ergebnis.txt";
    if (!Write(path, report)) {
        wchar_t home[MAX_PATH] = L"";
        GetEnvironmentVariableW(L"USERPROFILE", home, MAX_PATH);
        path = std::wstring(home) + L"\\Ergebnis.txt";
        if (!Write(path, report)) return 2;
    }
    wchar_t full[MAX_PATH] = L"";
    GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    Say("Fertig. Das Ergebnis steht in " + FromWide(full) + '\n');
    return allPassed ? 0 : 1;
}
