// What the services hand to functions of the system that show or tell nothing of it afterwards:
// seen by functions that stand in for these.
#include <windows.h>

#include <doctest/doctest.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <string>

#include "contract/machine.h"
#include "contract/win32/child.h"
#include "platform/processes.h"
#include "platform/systemfacts.h"
#include "platform/tooltips.h"
#include "platform/win32/formhandles.h"
#include "platform/win32/handle.h"
#include "platform/win32/messages.h"
#include "platform/win32/shell.h"
#include "support/standinfunction.h"
#include "system/processwait.h"

// Where the code of this program finds the system's functions.
extern "C" {
extern void* entryOfCreateProcess asm("__imp__CreateProcessA@40");
extern void* entryOfCreateWindow asm("__imp__CreateWindowExA@48");
extern void* entryOfGetProcAddress asm("__imp__GetProcAddress@8");
extern void* entryOfGetSpecialFolder asm("__imp__SHGetSpecialFolderLocation@12");
extern void* entryOfGetUserName asm("__imp__GetUserNameA@8");
extern void* entryOfGetWindowsDirectory asm("__imp__GetWindowsDirectoryA@8");
extern void* entryOfShellExecute asm("__imp__ShellExecuteA@24");
}

namespace {

namespace win32 = platform::win32;
using support::StandInFunction;

// The program's main form, with a plain window.
class MainForm final : public win32::FormHandles {
  public:
    MainForm() { form_.isDialog = false; }
    void Open(toolkit::Form&) override {}
    void RunModal(toolkit::Form&) override {}
    void Close(toolkit::Form&) override {}
    toolkit::Bounds WorkArea() const override { return {}; }
    std::vector<toolkit::Form*> OpenForms() const override { return {&form_}; }
    HWND WindowOf(const toolkit::Form&) const override { return window.Get(); }

    win32::WindowHandle window{CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                               nullptr, nullptr, nullptr)};

  private:
    mutable toolkit::Form form_{*this, "frmMain", "", {}};
};

struct MainShell {
    MainForm forms;
    win32::Messages messages;
    win32::Shell shell{forms, messages};
};

HWND handed = nullptr;
int calls = 0;

HINSTANCE WINAPI NoteExecute(HWND owner, LPCSTR, LPCSTR, LPCSTR, LPCSTR, INT) {
    handed = owner;
    ++calls;
    return reinterpret_cast<HINSTANCE>(SE_ERR_FNF);
}

HRESULT WINAPI NoteSpecialFolder(HWND owner, int, LPITEMIDLIST*) {
    handed = owner;
    ++calls;
    return E_FAIL;
}

DWORD kindOfSheet = 0;
std::wstring textsOfSheet;

BOOL WINAPI NoteSheet(HWND owner, DWORD kind, LPCWSTR object, LPCWSTR page) {
    handed = owner;
    ++calls;
    kindOfSheet = kind;
    textsOfSheet = std::wstring(object) + L'|' + page;
    return TRUE;
}

std::string moduleOfSheet;

FARPROC WINAPI FindSheet(HMODULE module, LPCSTR name) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(module, path, MAX_PATH);
    const std::string file = path;
    moduleOfSheet = file.substr(file.rfind('\\') + 1);
    if (name != MAKEINTRESOURCEA(178)) return nullptr;
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(NoteSheet));
}

BOOL WINAPI TellPaula(LPSTR buffer, LPDWORD length) {
    constexpr char Name[] = "Paula";
    CHECK(*length == 255);
    // A system may fill what it does not need.
    std::fill(buffer, buffer + *length, 'x');
    std::copy(Name, Name + sizeof Name, buffer);
    *length = sizeof Name;
    return TRUE;
}

UINT WINAPI TellRoot(LPSTR buffer, UINT size) {
    constexpr char Root[] = "D:\\";
    CHECK(size == 255);
    std::fill(buffer, buffer + size, 'x');
    std::copy(Root, Root + sizeof Root, buffer);
    return sizeof Root - 1;
}

std::array<int, 4> place;

HWND WINAPI NotePlace(DWORD, LPCSTR, LPCSTR, DWORD, int x, int y, int width, int height, HWND,
                      HMENU, HINSTANCE, LPVOID) {
    place = {x, y, width, height};
    return nullptr;
}

PROCESS_INFORMATION lastProcess;
decltype(CreateProcessA)* realCreateProcess = nullptr;

BOOL WINAPI NoteProcess(LPCSTR file, LPSTR line, LPSECURITY_ATTRIBUTES process,
                        LPSECURITY_ATTRIBUTES thread, BOOL inherits, DWORD flags, LPVOID variables,
                        LPCSTR folder, LPSTARTUPINFOA startup, LPPROCESS_INFORMATION started) {
    const BOOL done = realCreateProcess(file, line, process, thread, inherits, flags, variables,
                                        folder, startup, started);
    lastProcess = *started;
    return done;
}

bool IsOpen(HANDLE handle) {
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags);
}

}  // namespace

TEST_CASE_FIXTURE(MainShell, "a file is opened for the main window, and its absence passed over") {
    const StandInFunction function(entryOfShellExecute, NoteExecute);
    handed = nullptr;
    calls = 0;
    CHECK_NOTHROW(shell.Execute("Open", "perfmon.msc", "", "C:\\", 1));
    CHECK(calls == 1);
    CHECK(handed == forms.window.Get());
}

TEST_CASE_FIXTURE(MainShell, "a special folder is asked for by the main window") {
    const StandInFunction function(entryOfGetSpecialFolder, NoteSpecialFolder);
    handed = nullptr;
    calls = 0;
    CHECK(shell.SpecialFolder(0x24) == "");
    CHECK(calls == 1);
    CHECK(handed == forms.window.Get());
}

TEST_CASE_FIXTURE(MainShell,
                  "the sheet of properties is number 178, over the main window, unnamed") {
    const StandInFunction function(entryOfGetProcAddress, FindSheet);
    handed = nullptr;
    calls = 0;
    textsOfSheet = L"?";
    shell.ObjectProperties(2);
    CHECK(calls == 1);
    CHECK(CompareStringA(LOCALE_INVARIANT, NORM_IGNORECASE, moduleOfSheet.c_str(), -1,
                         "shell32.dll", -1) == CSTR_EQUAL);
    CHECK(handed == forms.window.Get());
    CHECK(kindOfSheet == 2);
    CHECK(textsOfSheet == L"|");
}

TEST_CASE("a user's name of five letters has five characters and no NUL") {
    contract::TestMachine machine;
    const StandInFunction function(entryOfGetUserName, TellPaula);
    CHECK(machine.Services().systemFacts.UserName() == "Paula");
}

TEST_CASE("a Windows directory that is the root of a drive is told without its backslash") {
    contract::TestMachine machine;
    const StandInFunction function(entryOfGetWindowsDirectory, TellRoot);
    CHECK(machine.Services().systemFacts.WindowsDirectory() == "D:");
}

TEST_CASE("a tooltip window asks for the default place and size") {
    contract::TestMachine machine;
    const StandInFunction function(entryOfCreateWindow, NotePlace);
    place = {};
    machine.Services().toolTips.Create(8, 3);
    for (const int number : place) CHECK(static_cast<std::uint32_t>(number) == 0x80000000);
}

TEST_CASE("after a process has been awaited its handle is closed, and that of its thread is not") {
    contract::TestMachine machine;
    const StandInFunction function(entryOfCreateProcess, NoteProcess);
    realCreateProcess = reinterpret_cast<decltype(CreateProcessA)*>(function.Real());
    lastProcess = {};
    CHECK(sys::ShellWait(machine.Services().processes, contract::ChildCommand("sleep 1"), false));
    REQUIRE(lastProcess.hThread);
    CHECK_FALSE(IsOpen(lastProcess.hProcess));
    CHECK(IsOpen(lastProcess.hThread));
    CloseHandle(lastProcess.hThread);
}
