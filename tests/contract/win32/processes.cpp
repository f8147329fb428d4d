#include "platform/processes.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "contract/win32/child.h"

namespace {

constexpr platform::Processes::StartupInfo Hidden{66, 1, 0};

HANDLE Native(platform::Processes::Handle process) {
    return reinterpret_cast<HANDLE>(process);
}

}  // namespace

TEST_CASE("waiting lasts until the process has ended and lets no event through") {
    contract::TestMachine machine;
    auto& processes = machine.Services().processes;
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
    const auto process = processes.Create(contract::ChildCommand("sleep 700"), 32, Hidden);
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
    const auto process = processes.Create(contract::ChildCommand("sleep 1500"), 32, Hidden);
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
