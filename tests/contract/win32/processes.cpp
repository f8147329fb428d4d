#include "platform/processes.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "contract/win32/child.h"
#include "platform/files.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

constexpr platform::Processes::StartupInfo HiddenStart{66, 1, 0};

HANDLE Native(platform::Processes::Handle process) {
    return reinterpret_cast<HANDLE>(process);
}

}  // namespace

TEST_CASE("waiting lasts until the process has ended and lets no event through") {
    contract::TestMachine machine;
    auto& processes = machine.Services().processes;
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
    const auto process = processes.Create(contract::ChildCommand("sleep 700"), 32, HiddenStart);
    REQUIRE(process != 0);
    CHECK(WaitForSingleObject(Native(process), 0) == DWORD{WAIT_TIMEOUT});
    processes.WaitForEnd(process);
    CHECK(WaitForSingleObject(Native(process), 0) == DWORD{WAIT_OBJECT_0});
    DWORD code = 0;
    GetExitCodeProcess(Native(process), &code);
    CHECK(code == 7);
    MSG message;
    CHECK(PeekMessageW(&message, nullptr, WM_APP, WM_APP, PM_REMOVE));
    CHECK(processes.Close(process));
}

TEST_CASE("inheritable handles go to the process") {
    contract::TestMachine machine;
    auto& processes = machine.Services().processes;
    SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
    const HANDLE mutex = CreateMutexW(&inheritable, FALSE, L"QuillmoreContractInherited");
    REQUIRE(mutex);
    const auto process = processes.Create(contract::ChildCommand("sleep 1500"), 32, HiddenStart);
    REQUIRE(process != 0);
    // The name lives on only through the handle that the other process inherited.
    CloseHandle(mutex);
    const HANDLE again = OpenMutexW(SYNCHRONIZE, FALSE, L"QuillmoreContractInherited");
    CHECK(again != nullptr);
    if (again) CloseHandle(again);
    processes.WaitForEnd(process);
    processes.Close(process);
    CHECK(OpenMutexW(SYNCHRONIZE, FALSE, L"QuillmoreContractInherited") == nullptr);
}

TEST_CASE("a program started by command line gets its window style and is not waited for") {
    contract::TestMachine machine;
    auto& processes = machine.Services().processes;
    const std::string report = machine.FilePath("style.txt");
    const DWORD before = GetTickCount();
    processes.Start(contract::ChildCommand("sleep 3000"), 0);
    CHECK(GetTickCount() - before < 3000);
    processes.Start(contract::ChildCommand("style " + report), 6);
    REQUIRE(
        machine.PassTime(10000, [&] { return machine.FileContent(report).value_or("") != ""; }));
    CHECK(machine.FileContent(report) == "flags 1 show 6");
}

TEST_CASE("a program started by command line inherits no handle") {
    contract::TestMachine machine;
    SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
    const HANDLE mutex = CreateMutexW(&inheritable, FALSE, L"QuillmoreContractKept");
    REQUIRE(mutex);
    machine.Services().processes.Start(contract::ChildCommand("sleep 1500"), 0);
    CloseHandle(mutex);
    CHECK(OpenMutexW(SYNCHRONIZE, FALSE, L"QuillmoreContractKept") == nullptr);
}

TEST_CASE("a start fails by the number that fits: no file, no path, no program") {
    contract::TestMachine machine;
    auto& files = machine.Services().files;
    const auto numberOf = [&](const std::string& commandLine) {
        return FailureOf([&] { machine.Services().processes.Start('"' + commandLine + '"', 1); });
    };
    CHECK(numberOf(machine.FilePath("absent.exe")) == runtime::FileNotFound);
    // Which one of the two it is differs between systems.
    const int noPath = numberOf(machine.FilePath("absent\\absent.exe"));
    CHECK((noPath == runtime::PathNotFound || noPath == runtime::FileNotFound));
    const std::string text = machine.FilePath("text.exe");
    const auto file = files.OpenForAppend(text);
    files.Write(file, "this is no program");
    files.Close(file);
    CHECK(numberOf(text) == runtime::InvalidProcedureCall);
}
