#include <windows.h>

#include <commctrl.h>
#include <psapi.h>
#include <shlwapi.h>
#include <winternl.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

#include "contract/layer.h"
#include "contract/machine.h"
#include "contract/win32/cacheentries.h"
#include "contract/win32/child.h"
#include "contract/win32/folderuser.h"
#include "contract/win32/menuuser.h"
#include "contract/win32/standins.h"
#include "platform/win32/console/wideregistry.h"
#include "platform/win32/formhandles.h"
#include "platform/win32/handle.h"
#include "platform/win32/machine.h"
#include "platform/win32/text.h"
#include "support/timeserver.h"
#include "support/wineversion.h"
#include "toolkit/form.h"

namespace contract {
namespace {

namespace win32 = platform::win32;

// The services need no windows, and the suite opens none.
class NoForms final : public win32::FormHandles {
  public:
    void Open(toolkit::Form&) override { throw std::logic_error("no forms here"); }
    void RunModal(toolkit::Form&) override { throw std::logic_error("no forms here"); }
    void Close(toolkit::Form&) override {}
    toolkit::Bounds WorkArea() const override { return {}; }
    std::vector<toolkit::Form*> OpenForms() const override { return {}; }
    HWND WindowOf(const toolkit::Form&) const override { return nullptr; }
};

// What NtQueryValueKey tells: the value as it is stored, without a terminator of the query's own.
struct ValueRecord {
    ULONG titleIndex;
    ULONG type;
    ULONG size;
    BYTE data[1];
};

using QueryValueKey = NTSTATUS(NTAPI*)(HANDLE, UNICODE_STRING*, int, void*, ULONG, ULONG*);
constexpr int PartialInformation = 2;

bool IsText(std::uint32_t type) {
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

std::string AnsiOf(std::wstring_view wide) {
    std::string bytes(wide.size(), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                        static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes;
}

void RemoveTraces() {
    const std::wstring scratch = win32::ToWide(Scratch);
    for (HKEY root : {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        SHDeleteKeyW(root, scratch.c_str());
    }
    const std::wstring title = win32::ToWide(Title);
    SHDeleteKeyW(HKEY_CURRENT_USER, (L"Software\\VB and VBA Program Settings\\" + title).c_str());
    SHDeleteValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                   title.c_str());
}

std::wstring ScratchDirectory() {
    wchar_t buffer[MAX_PATH];
    return std::wstring(buffer, GetTempPathW(MAX_PATH, buffer)) + win32::ToWide(Title);
}

// Starts a program of the system around Wine, with wide characters that Windows' own code page may
// not have. Nobody can wait for it, so `done` tells when it has ended.
void RunUnix(const std::wstring& commandLine, const std::function<bool()>& done) {
    std::wstring command = win32::ToWide(ChildCommand("unix ")) + commandLine;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        throw std::logic_error("no program of the system around Wine");
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    for (int tries = 0; tries < 1000 && !done(); ++tries) Sleep(5);
}

std::wstring UnixPath(const std::wstring& path) {
    using Function = char*(CDECL*)(LPCWSTR);
    const auto function = reinterpret_cast<Function>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* name = function(path.c_str());
    const std::wstring wide = win32::ToWide(name);
    HeapFree(GetProcessHeap(), 0, name);
    return wide;
}

DWORD AttributesOf(const std::wstring& path) {
    return GetFileAttributesW(path.c_str());
}

void RemoveTree(const std::wstring& directory) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((directory + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        const std::wstring path = directory + L'\\' + name;
        if (name == L"." || name == L"..") continue;
        if (WineVersion() == 0 && found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) {
            RemoveDirectoryW(path.c_str());
            continue;
        }
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            RemoveTree(path);
        } else {
            DeleteFileW(path.c_str());
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
    RemoveDirectoryW(directory.c_str());
}

// As the file system keeps a link to a folder, behind which two texts follow.
struct JunctionRecord {
    ULONG tag;
    USHORT size;
    USHORT reserved;
    USHORT substituteOffset;
    USHORT substituteLength;
    USHORT printOffset;
    USHORT printLength;
    wchar_t texts[MAX_PATH * 2];
};
constexpr std::size_t JunctionHead = offsetof(JunctionRecord, substituteOffset);
static_assert(JunctionHead == 8 && offsetof(JunctionRecord, texts) == 16);

void MakeJunction(const std::wstring& path, const std::wstring& target) {
    constexpr DWORD SetReparsePoint = 0x900A4;
    const std::wstring substitute = L"\\??\\" + target;
    const std::size_t bytes = substitute.size() * sizeof(wchar_t);
    JunctionRecord record = {};
    record.tag = IO_REPARSE_TAG_MOUNT_POINT;
    record.substituteLength = static_cast<USHORT>(bytes);
    // An empty one, behind the NUL of the other.
    record.printOffset = static_cast<USHORT>(bytes + sizeof(wchar_t));
    substitute.copy(record.texts, substitute.size());
    const std::size_t all = offsetof(JunctionRecord, texts) + bytes + 2 * sizeof(wchar_t);
    record.size = static_cast<USHORT>(all - JunctionHead);
    CreateDirectoryW(path.c_str(), nullptr);
    const win32::FileHandle folder(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                    FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    DWORD returned = 0;
    if (!folder || !DeviceIoControl(folder.Get(), SetReparsePoint, &record, static_cast<DWORD>(all),
                                    nullptr, 0, &returned, nullptr)) {
        throw std::logic_error("no link to a folder");
    }
}

bool linksMade = false;

void RemoveScratchDirectory() {
    const std::wstring directory = ScratchDirectory();
    // Wine follows links when it deletes, and does not see those that lead nowhere.
    if (!linksMade) return RemoveTree(directory);
    RunUnix(L"rm -rf \"" + UnixPath(directory) + L'"',
            [&] { return AttributesOf(directory) == INVALID_FILE_ATTRIBUTES; });
    linksMade = false;
}

std::vector<ClockSetting> clockSettings;
bool clockRefuses = false;

BOOL NoteSetting(const SYSTEMTIME* moment, bool system) {
    clockSettings.push_back({system,
                             {moment->wYear, moment->wMonth, moment->wDay, moment->wHour,
                              moment->wMinute, moment->wSecond}});
    return !clockRefuses;
}

BOOL WINAPI NoteLocal(const SYSTEMTIME* moment) {
    return NoteSetting(moment, false);
}

BOOL WINAPI NoteSystem(const SYSTEMTIME* moment) {
    return NoteSetting(moment, true);
}

LRESULT CALLBACK RefuseDialogs(int code, WPARAM window, LPARAM facts) {
    const auto isDialog = [&] {
        return GetClassLongW(reinterpret_cast<HWND>(window), GCW_ATOM) ==
               LOWORD(reinterpret_cast<ULONG_PTR>(WC_DIALOG));
    };
    if (code == HCBT_CREATEWND && isDialog()) return 1;
    return CallNextHookEx(nullptr, code, window, facts);
}

}  // namespace

struct TestMachine::Inside {
    win32::SystemClock clock{NoteLocal, NoteSystem};
    std::vector<std::unique_ptr<TimeServer>> servers;
    NoForms forms;
    win32::WideRegistry wide;
    win32::Machine machine{forms};
    Layer layer{machine.services};
    StandIns windows;
    CacheEntries cache;
    std::unique_ptr<MenuUser> menuUser;
    std::unique_ptr<FolderUser> folderUser;
};

TestMachine::TestMachine() : inside_(std::make_unique<Inside>()) {
    clockSettings.clear();
    clockRefuses = false;
    RemoveTraces();
    RemoveScratchDirectory();
    CreateDirectoryW(ScratchDirectory().c_str(), nullptr);
}

TestMachine::~TestMachine() {
    inside_.reset();
    RemoveTraces();
    RemoveScratchDirectory();
}

platform::Machine& TestMachine::Services() {
    return inside_->layer.Services();
}

platform::WideRegistry& TestMachine::Wide() {
    return inside_->wide;
}

std::optional<Stored> TestMachine::StoredAt(platform::Registry::Key root, std::string_view path,
                                            std::string_view valueName) const {
    if (inside_->layer.KeepsWrites()) return inside_->layer.StoredAt(root, path, valueName);
    win32::RegistryKey key;
    if (RegOpenKeyExW(reinterpret_cast<HKEY>(root), win32::ToWide(path).c_str(), 0, KEY_QUERY_VALUE,
                      key.Out()) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const auto query = reinterpret_cast<QueryValueKey>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryValueKey")));
    std::wstring name = win32::ToWide(valueName);
    const auto nameSize = static_cast<USHORT>(name.size() * sizeof(wchar_t));
    UNICODE_STRING counted = {nameSize, nameSize, name.data()};
    std::vector<BYTE> buffer(256 * 1024);
    ULONG filled = 0;
    if (query(key.Get(), &counted, PartialInformation, buffer.data(),
              static_cast<ULONG>(buffer.size()), &filled) != 0) {
        return std::nullopt;
    }
    const auto* value = reinterpret_cast<const ValueRecord*>(buffer.data());
    if (IsText(value->type)) {
        return Stored{value->type, AnsiOf({reinterpret_cast<const wchar_t*>(value->data),
                                           value->size / sizeof(wchar_t)})};
    }
    return Stored{value->type, {reinterpret_cast<const char*>(value->data), value->size}};
}

std::string TestMachine::FilePath(std::string_view name) const {
    return win32::FromWide(ScratchDirectory()) + '\\' + std::string(name);
}

std::optional<std::string> TestMachine::FileContent(std::string_view path) const {
    const win32::FileHandle file(CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    if (!file) return std::nullopt;
    std::string content(GetFileSize(file.Get(), nullptr), '\0');
    DWORD read = 0;
    ReadFile(file.Get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
    return content;
}

void TestMachine::AddCacheEntry(std::string_view url, std::uint32_t type) {
    inside_->cache.Add(win32::ToAnsi(url), type);
}

void TestMachine::LockCacheEntry(std::string_view url) {
    inside_->cache.Lock(win32::ToAnsi(url));
}

std::optional<std::string> TestMachine::ClipboardText() const {
    if (!OpenClipboard(nullptr)) return std::nullopt;
    std::optional<std::string> text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
        text = win32::FromWide(static_cast<const wchar_t*>(GlobalLock(memory)));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

void TestMachine::Protect(std::string_view path) {
    SetFileAttributesW(win32::ToWide(path).c_str(), FILE_ATTRIBUTE_READONLY);
}

void TestMachine::MakeFolder(std::string_view path) {
    CreateDirectoryW(win32::ToWide(path).c_str(), nullptr);
}

void TestMachine::SetAttributes(std::string_view path, std::uint32_t attributes) {
    SetFileAttributesW(win32::ToWide(path).c_str(), attributes);
}

void TestMachine::MakeLink(std::string_view path, std::string_view target) {
    const std::wstring link = win32::ToWide(path);
    if (IsRealXp()) return MakeJunction(link, win32::ToWide(target));
    linksMade = true;
    RunUnix(L"ln -s \"" + UnixPath(win32::ToWide(target)) + L"\" \"" + UnixPath(link) + L'"',
            [&] { return AttributesOf(link) != INVALID_FILE_ATTRIBUTES; });
}

void TestMachine::WithShared(std::string_view path, const std::function<void()>& action) {
    const win32::FileHandle shared(
        CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                    0, nullptr));
    if (!shared) throw std::logic_error("no file to share");
    action();
}

void TestMachine::WithUnreadable(std::string_view path, const std::function<void()>& action) {
    const win32::FileHandle held(CreateFileW(win32::ToWide(path).c_str(), GENERIC_READ, 0, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    action();
}

platform::OtherWindows::Handle TestMachine::OpenWindow(std::string_view className,
                                                       std::string_view title,
                                                       platform::OtherWindows::Handle parent) {
    return reinterpret_cast<platform::OtherWindows::Handle>(
        inside_->windows.Open(className, title, reinterpret_cast<HWND>(parent)));
}

void TestMachine::EndWindow(platform::OtherWindows::Handle window) {
    inside_->windows.Close(reinterpret_cast<HWND>(window));
}

WindowLook TestMachine::LookAt(platform::OtherWindows::Handle window) const {
    return inside_->windows.LookAt(reinterpret_cast<HWND>(window));
}

TipLook TestMachine::LookAtTips(platform::ToolTips::Handle window) const {
    const auto ask = [&](UINT message, WPARAM which = 0) {
        return SendMessageW(reinterpret_cast<HWND>(window), message, which, 0);
    };
    return {static_cast<std::uint32_t>(ask(TTM_GETTIPTEXTCOLOR)),
            static_cast<std::uint32_t>(ask(TTM_GETTIPBKCOLOR)),
            ask(TTM_GETDELAYTIME, TTDT_AUTOPOP),
            ask(TTM_GETDELAYTIME, TTDT_INITIAL),
            ask(TTM_GETMAXTIPWIDTH),
            ask(TTM_GETTOOLCOUNT)};
}

// The window may have made a copy of the font.
std::pair<int, std::string> TestMachine::TipFont(platform::ToolTips::Handle window) const {
    const auto font = SendMessageW(reinterpret_cast<HWND>(window), WM_GETFONT, 0, 0);
    LOGFONTW facts = {};
    GetObjectW(reinterpret_cast<HFONT>(font), sizeof facts, &facts);
    return {facts.lfHeight, win32::FromWide(facts.lfFaceName)};
}

std::string TestMachine::TipText(platform::ToolTips::Handle window, std::uintptr_t tool,
                                 std::uintptr_t id) const {
    std::wstring text(8192, L'\0');
    TTTOOLINFOW record = {};
    record.cbSize = TTTOOLINFOW_V1_SIZE;
    record.hwnd = reinterpret_cast<HWND>(tool);
    record.uId = id;
    record.lpszText = text.data();
    SendMessageW(reinterpret_cast<HWND>(window), TTM_GETTEXTW, text.size(),
                 reinterpret_cast<LPARAM>(&record));
    return win32::FromWide(text.c_str());
}

std::size_t TestMachine::ResidentBytes() const {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

std::uint16_t TestMachine::Serve(std::vector<ServerAnswer> answers) {
    inside_->servers.push_back(std::make_unique<TimeServer>(std::move(answers)));
    return inside_->servers.back()->Port();
}

std::uint16_t TestMachine::RefusingPort() {
    return TimeServer({}).Port();
}

int TestMachine::NumberOfBreak() const {
    if (WineVersion() == 0) return WSAECONNRESET;
    return WineVersion() < 10 ? 0 : WSAECONNABORTED;
}

bool TestMachine::IsRealXp() const {
    return WineVersion() == 0;
}

bool TestMachine::LacksWorkstationService() const {
    return WineVersion() != 0;
}

bool TestMachine::TakesTooLongKeys() const {
    return WineVersion() != 0;
}

platform::SystemClock& TestMachine::NotingClock() {
    return inside_->clock;
}

std::vector<ClockSetting> TestMachine::ClockSettings() const {
    return clockSettings;
}

void TestMachine::RefuseClock() {
    clockRefuses = true;
}

bool TestMachine::PassTime(int milliseconds, const std::function<bool()>& done) {
    const DWORD start = GetTickCount();
    while (!done() && GetTickCount() - start < static_cast<DWORD>(milliseconds)) {
        MSG message;
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        } else {
            Sleep(1);
        }
    }
    return done();
}

void TestMachine::UseNextMenu(std::string caption, std::function<void()> whileOpen) {
    inside_->menuUser.reset();
    inside_->menuUser = std::make_unique<MenuUser>(std::move(caption), std::move(whileOpen));
}

void TestMachine::WithoutBoxes(const std::function<void()>& action) {
    const HHOOK hook = SetWindowsHookExW(WH_CBT, RefuseDialogs, nullptr, GetCurrentThreadId());
    action();
    UnhookWindowsHookEx(hook);
}

void TestMachine::UseNextFolderDialog(bool ok) {
    // The old one goes first, so that only one is ever at work.
    inside_->folderUser.reset();
    inside_->folderUser = std::make_unique<FolderUser>(ok);
}

std::string TestMachine::EndingCommand() const {
    return ChildCommand("sleep 300");
}

std::string TestMachine::MissingCommand() {
    return FilePath("missing.exe");
}

std::string TestMachine::ExpectedDirectory() const {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    PathRemoveFileSpecW(path);
    return win32::FromWide(path);
}

std::string TestMachine::MissingDrive() const {
    const DWORD drives = GetLogicalDrives();
    char letter = 'Y';
    while (drives >> (letter - 'A') & 1) --letter;
    return {letter, ':'};
}

std::string TestMachine::ExpectedUser() const {
    if (!IsRealXp()) return "Besitzer";
    wchar_t name[257] = {};
    GetEnvironmentVariableW(L"USERNAME", name, 257);
    return win32::FromWide(name);
}

std::string TestMachine::ExpectedName() const {
    return "test_contract";
}

}  // namespace contract
