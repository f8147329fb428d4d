#include "endtoend/tools.h"

#include <windows.h>

#include <tlhelp32.h>

#include "endtoend/registrystate.h"
#include "endtoend/standin/recorder.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

// What has been put aside lies beside its place, so that a later run finds it. An empty file stands
// for nothing.
std::string Aside(const std::string& path) {
    return path + ".aside";
}

bool Delete(const std::string& path) {
    return DeleteFileW(ToWide(path).c_str()) || !Exists(path);
}

bool Move(const std::string& from, const std::string& to) {
    return MoveFileW(ToWide(from).c_str(), ToWide(to).c_str()) != FALSE;
}

// Those that were missing, the uppermost first.
std::vector<std::string> MakeFolders(const std::string& folder) {
    if (Exists(folder)) return {};
    std::vector<std::string> made = MakeFolders(FolderOf(folder));
    if (!CreateDirectoryW(ToWide(folder).c_str(), nullptr)) throw Failed("no folder " + folder);
    made.push_back(folder);
    return made;
}

// A program that has ended may still hold its file for a moment.
void DeletePatiently(const std::string& path) {
    for (unsigned waited = 0; waited < Patience && !Delete(path); waited += Step) Sleep(Step);
}

bool IsRunning(const std::string& path) {
    const std::wstring name = ToWide(path.substr(path.find_last_of('\\') + 1));
    const platform::win32::FileHandle all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W process = {};
    process.dwSize = sizeof process;
    for (BOOL more = Process32FirstW(all.Get(), &process); more;
         more = Process32NextW(all.Get(), &process)) {
        if (lstrcmpiW(process.szExeFile, name.c_str()) == 0) return true;
    }
    return false;
}

constexpr char Overrides[] = "Software\\Wine\\DllOverrides";

// Wine starts a tool of its own whatever lies at the place, unless it is told otherwise.
ValuePlace OverrideOf(const std::string& path) {
    return {"HKCU", Overrides, path.substr(path.find_last_of('\\') + 1)};
}

}  // namespace

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.find_last_of('\\'));
}

bool Exists(const std::string& path) {
    return GetFileAttributesW(ToWide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void ForgetLeftOverrides() {
    static const bool forgotten = [] {
        DeleteTree("HKCU", Overrides);
        return true;
    }();
    (void)forgotten;
}

std::string SystemFolder() {
    wchar_t folder[MAX_PATH];
    return FromWide({folder, GetSystemDirectoryW(folder, MAX_PATH)});
}

std::string WindowsFolder() {
    wchar_t folder[MAX_PATH];
    return FromWide({folder, GetWindowsDirectoryW(folder, MAX_PATH)});
}

unsigned SizeOf(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    GetFileAttributesExW(ToWide(path).c_str(), GetFileExInfoStandard, &facts);
    return facts.nFileSizeLow;
}

void WriteFile(const std::string& path, const std::string& bytes) {
    const platform::win32::FileHandle file(
        CreateFileW(ToWide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    if (!file || !::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                              nullptr)) {
        throw Failed("cannot write " + path);
    }
}

EmptyPlace::EmptyPlace(const std::string& path)
    : path_(path), madeFolders_(MakeFolders(FolderOf(path))) {
    if (Exists(Aside(path_))) {
        // A run that was broken off has left this, and something of its own at the place.
        DeletePatiently(path_);
    } else if (!Exists(path_)) {
        WriteFile(Aside(path_), "");
    } else if (!Move(path_, Aside(path_))) {
        throw Failed("cannot put aside " + path_);
    }
}

EmptyPlace::~EmptyPlace() {
    DeletePatiently(path_);
    if (ReadFile(Aside(path_)).empty()) {
        Delete(Aside(path_));
    } else {
        Move(Aside(path_), path_);
    }
    for (; !madeFolders_.empty(); madeFolders_.pop_back()) {
        RemoveDirectoryW(ToWide(madeFolders_.back()).c_str());
    }
}

std::string Describe(const Started& started) {
    return started.commandLine + " in " + started.folder + " shown " + started.show;
}

StandIn::StandIn(const std::string& path) : place_(path) {
    ForgetLeftOverrides();
    DeletePatiently(Record());
    WriteFile(Path(), ReadFile(OwnFolder() + "\\recorder.exe"));
    WriteValue(OverrideOf(Path()), TerminatedText("native"));
    Prove();
}

StandIn::~StandIn() {
    // The record must not come after it has been deleted.
    for (unsigned waited = 0; waited < Patience && IsRunning(Path()); waited += Step) Sleep(Step);
    DeletePatiently(Record());
    DeleteValue(OverrideOf(Path()));
}

void StandIn::Prove() const {
    const Program start(Path(), "proof");
    if (!WaitStart().commandLine.ends_with(" proof")) throw Failed("no stand-in at " + Path());
    start.WaitForEnd();
}

std::string StandIn::Record() const {
    return Path() + FromWide(RecordSuffix);
}

Started StandIn::WaitStart() const {
    std::string bytes;
    Until("the start of " + Path(), [&] {
        bytes = ReadFile(Record());
        return !bytes.empty();
    });
    DeletePatiently(Record());
    const std::string text =
        FromWide({reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t)});
    const std::size_t folder = text.find('\n') + 1;
    const std::size_t show = text.find('\n', folder) + 1;
    return {text.substr(0, folder - 1), text.substr(folder, show - 1 - folder), text.substr(show)};
}

// In this order: what ends between the two looks has left its record.
bool StandIn::WasStarted() const {
    return IsRunning(Path()) || Exists(Record());
}

Document::Document(const std::string& path) : place_(path) {
    WriteFile(path, "stand-in\r\n");
}

Hold::Hold() : mayEnd_(CreateEventW(nullptr, TRUE, FALSE, MayEnd)) {}

void Hold::LetGo() const {
    SetEvent(mayEnd_.Get());
}

}  // namespace endtoend
