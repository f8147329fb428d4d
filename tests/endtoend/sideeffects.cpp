#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>

#include "endtoend/pages.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"

namespace endtoend {
namespace {

namespace win32 = platform::win32;

// A bar as the shell has them, in a thread that answers its messages as another program would.
class Bar {
  public:
    Bar() {
        thread_.Reset(CreateThread(nullptr, 0, Run, this, 0, nullptr));
        Until("a window of the class BaseBar", [&] { return window_ != nullptr; });
    }
    ~Bar() {
        PostMessageW(window_, WM_CLOSE, 0, 0);
        WaitForSingleObject(thread_.Get(), INFINITE);
    }
    Bar(const Bar&) = delete;
    Bar& operator=(const Bar&) = delete;

    // -1 as long as nobody has set it.
    int Alpha() const {
        BYTE alpha = 0;
        DWORD flags = 0;
        const bool set = GetLayeredWindowAttributes(window_, nullptr, &alpha, &flags) != FALSE;
        return set && (flags & LWA_ALPHA) ? alpha : -1;
    }

  private:
    static DWORD WINAPI Run(void* self) {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.lpszClassName = L"BaseBar";
        RegisterClassW(&windowClass);
        static_cast<Bar*>(self)->window_ =
            CreateWindowExW(0, L"BaseBar", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 20, nullptr,
                            nullptr, nullptr, nullptr);
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
        UnregisterClassW(L"BaseBar", nullptr);
        return 0;
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_DESTROY) PostQuitMessage(0);
        return DefWindowProcW(window, message, wParam, lParam);
    }

    win32::KernelHandle thread_;
    // Set by the other thread, once.
    HWND volatile window_ = nullptr;
};

constexpr char Components[] = "C:\\windows\\inf\\Sysoc.inf";

// The components' file of this Windows, which has none by itself; it goes at the end.
class ComponentsFile {
  public:
    explicit ComponentsFile(const std::string& content) {
        CreateDirectoryW(L"C:\\windows\\inf", nullptr);
        const win32::FileHandle file(
            CreateFileW(Path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        ::WriteFile(file.Get(), content.data(), static_cast<DWORD>(content.size()), &written,
                    nullptr);
    }
    ~ComponentsFile() { DeleteFileW(Path); }
    ComponentsFile(const ComponentsFile&) = delete;
    ComponentsFile& operator=(const ComponentsFile&) = delete;

    std::string Content() const { return ReadFile(Components); }

  private:
    static constexpr wchar_t Path[] = L"C:\\windows\\inf\\Sysoc.inf";
};

constexpr char BinKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
    "{645FF040-5081-101B-9F08-00AA002F954E}";

// What the program's process holds, and the most that it ever held.
PROCESS_MEMORY_COUNTERS MemoryOf(const Application& program) {
    DWORD id = 0;
    GetWindowThreadProcessId(program.Wait("frmMain"), &id);
    const win32::KernelHandle process(
        OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id));
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    if (!GetProcessMemoryInfo(process.Get(), &counters, sizeof counters)) {
        throw Failed("the process does not tell its memory");
    }
    return counters;
}

TEST_CASE(
    "the button takes the block that half of the memory decides on, writes it all, and gives it "
    "back") {
    MEMORYSTATUSEX machine = {};
    machine.dwLength = sizeof machine;
    GlobalMemoryStatusEx(&machine);
    REQUIRE(machine.ullTotalPhys > 512000001);
    constexpr double block = 240000000;
    const Workplace workplace;
    const OpenProgram program(workplace);
    const auto held = static_cast<double>(MemoryOf(program).WorkingSetSize);
    REQUIRE(static_cast<double>(MemoryOf(program).PeakWorkingSetSize) < block / 2);
    program.Click("cmdFreeMemory");
    Until("the block that was taken and given back", [&] {
        const PROCESS_MEMORY_COUNTERS now = MemoryOf(program);
        return static_cast<double>(now.PeakWorkingSetSize) - held > 0.98 * block &&
               static_cast<double>(now.WorkingSetSize) - held < 0.1 * block;
    });
    CHECK(static_cast<double>(MemoryOf(program).PeakWorkingSetSize) - held < 1.05 * block);
}

TEST_CASE("a level that is set acts on a bar of another program at once, and is stored") {
    const Workplace workplace;
    const Bar bar;
    const OpenProgram program(workplace);
    CHECK(bar.Alpha() == -1);
    program.SetText("txtLevelValue", "100");
    Until("the level on the bar", [&] { return bar.Alpha() == 100; });
    CHECK(program.SliderPosition("Level") == 100);
    CHECK(workplace.Stored("TaskBar", "Luminance") == "100");
    program.SetText("txtLevelValue", "255");
    Until("the full level on the bar", [&] { return bar.Alpha() == 255; });
}

TEST_CASE("a stored level acts at the start") {
    const Workplace workplace;
    workplace.Store("TaskBar", "Luminance", "77");
    const Bar bar;
    const OpenProgram program(workplace);
    CHECK(bar.Alpha() == 77);
}

TEST_CASE("the components' file is rewritten at the click, and not rewritten back") {
    const Workplace workplace;
    const ComponentsFile file("a,HIDE,7\r\nb,hide,7");
    const OpenProgram program(workplace);
    program.OpenTab(TweaksPage);
    program.SetChecked("chkHideWinComponents", true);
    Until("the rewritten file", [] { return SizeOf(Components) == 12; });
    CHECK(file.Content() == "a,,7\r\nb,,7\r\n");
    program.SetChecked("chkHideWinComponents", false);
    Until("the stored state", [&] { return workplace.Stored("WinComponents", "Show") == "false"; });
    // An answer comes when the click is done.
    CHECK(program.Responds("frmMain"));
    CHECK(file.Content() == "a,,7\r\nb,,7\r\n");
}

TEST_CASE("without the components' file the click ends in the platform's message") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(TweaksPage);
    program.Click("chkHideWinComponents");
    const MessageBox box = program.Answer("Quillmore", IDOK);
    CHECK(box.text.starts_with("Laufzeitfehler '53'"));
    CHECK(program.Running());
}

TEST_CASE("the recycle bin's key goes at the click, and comes back with one value at the next") {
    const Workplace workplace;
    CreateKey("HKLM", BinKey);
    const OpenProgram program(workplace);
    program.OpenTab(SecurityPage);
    CHECK_FALSE(program.Checked("chk1RecycleBinDelete"));
    program.SetChecked("chk1RecycleBinDelete", true);
    Until("the key to go", [] { return !KeyExists("HKLM", BinKey); });
    program.SetChecked("chk1RecycleBinDelete", false);
    Until("the key to come", [] { return KeyExists("HKLM", BinKey); });
    CHECK(program.Responds("frmMain"));
    CHECK(ReadValue({"HKLM", BinKey, "(Standard)"}) == BareText(""));
    CHECK_FALSE(ReadValue({"HKLM", BinKey, ""}));
    CHECK(program.Box().window == nullptr);
}

TEST_CASE("cleaning the user's folder warns at the click, and not when it is taken back") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(CleanUpPage);
    program.Click("chkCleanUserTempFolder");
    const MessageBox box = program.Answer("ACHTUNG!", IDOK);
    CHECK(box.text ==
          "Bitte schließen Sie vor Benutzung dieser Option unbedingt ALLE\r\n"
          "offenen Anwendungen um Datenverlust zu vermeiden!");
    CHECK(box.buttons == std::vector<int>{IDOK});
    CHECK(program.Checked("chkCleanUserTempFolder"));
    program.SetChecked("chkCleanUserTempFolder", false);
    CHECK(program.Responds("frmMain"));
    CHECK(program.Box().window == nullptr);
}

}  // namespace
}  // namespace endtoend
