// Measures the real program from its start to its first idle moment, against a bare program that
// makes the same number of windows: interleaved pairs, medians. Then its private memory.
// Call: startup <Quillmore.exe> <barewindow.exe> [pairs]
// Accepts the program's warning for the current user, as nobody is there to do so.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "processortime.h"

namespace {

constexpr DWORD Patience = 20000;

struct Run {
    bench::Cost cost;
    SIZE_T privateBytes = 0;
    int windows = 0;
};

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

struct MainWindow {
    DWORD process;
    HWND window;
};

BOOL CALLBACK FindMain(HWND window, LPARAM search) {
    auto* wanted = reinterpret_cast<MainWindow*>(search);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != wanted->process || !IsWindowVisible(window)) return TRUE;
    wanted->window = window;
    return FALSE;
}

[[noreturn]] void Fail(const char* what) {
    std::printf("startup: %s (error %lu)\n", what, GetLastError());
    std::exit(1);
}

void AcceptWarning() {
    HKEY options = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER,
                        "Software\\VB and VBA Program Settings\\Quillmore\\Options", 0, nullptr, 0,
                        KEY_SET_VALUE, nullptr, &options, nullptr) != ERROR_SUCCESS) {
        Fail("cannot accept the warning");
    }
    const char yes[] = "Yes";
    RegSetValueExA(options, "Accepted", 0, REG_SZ, reinterpret_cast<const BYTE*>(yes), sizeof yes);
    RegCloseKey(options);
}

Run Measure(const std::string& path, const std::string& argument = "") {
    std::string commandLine = '"' + path + "\" " + argument;
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    const double server = bench::ServerMilliseconds();
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    QueryPerformanceCounter(&start);
    if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        Fail("cannot start the program");
    }
    MainWindow found = {process.dwProcessId, nullptr};
    const DWORD deadline = GetTickCount() + Patience;
    WaitForInputIdle(process.hProcess, Patience);
    while (!found.window && GetTickCount() < deadline) {
        EnumWindows(FindMain, reinterpret_cast<LPARAM>(&found));
        if (!found.window) Sleep(1);
    }
    if (!found.window) Fail("no window came up");
    // An answered message means that everything before it in the queue has been handled.
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(found.window, WM_NULL, 0, 0, SMTO_NORMAL, Patience, &answer);
    QueryPerformanceCounter(&end);

    Run run;
    run.cost.processor = bench::ServerMilliseconds() - server;
    run.cost.processor +=
        bench::MillisecondsOf(bench::ProcessOf(path.substr(path.rfind('\\') + 1)));
    run.cost.clock = 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
                     static_cast<double>(frequency.QuadPart);
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof memory;
    if (GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory)) {
        run.privateBytes = memory.PagefileUsage;
    }
    EnumChildWindows(found.window, CountChild, reinterpret_cast<LPARAM>(&run.windows));
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, Patience);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return run;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) Fail("call: startup <Quillmore.exe> <barewindow.exe> [pairs]");
    const std::string ours = arguments[1];
    const std::string bare = arguments[2];
    const int pairs = count > 3 ? std::atoi(arguments[3]) : 15;

    AcceptWarning();
    const Run first = Measure(ours);
    const std::string windows = std::to_string(first.windows);
    Measure(bare, windows);
    bench::Costs ourCosts;
    bench::Costs bareCosts;
    for (int i = 0; i < pairs; ++i) {
        ourCosts.Add(Measure(ours).cost);
        bareCosts.Add(Measure(bare, windows).cost);
    }
    bench::Report("startup", ("start to idle, " + windows + " windows").c_str(), ourCosts,
                  bareCosts);
    std::printf("private_memory|private memory when idle|%.2f||MB||\n",
                static_cast<double>(first.privateBytes) / (1024 * 1024));
    return 0;
}
