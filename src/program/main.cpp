#include <windows.h>

#include <commctrl.h>

#include "app/frmmain.h"
#include "platform/win32/eventguard.h"
#include "platform/win32/machine.h"
#include "platform/win32/messages.h"
#include "platform/win32/windows/windowhost.h"

namespace {

// XP looks for libraries in the current directory early; nothing of the program's lies there. Only
// a system with a service pack can be told so.
void LeaveOutCurrentDirectory() {
    using SetDllDirectory = BOOL(WINAPI*)(const wchar_t*);
    const auto set = reinterpret_cast<SetDllDirectory>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDllDirectoryW")));
    if (set) set(L"");
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    LeaveOutCurrentDirectory();
    // Without this call XP cannot make the windows that the manifest asks for.
    InitCommonControls();

    platform::win32::Messages messages;
    platform::win32::WindowHost host(messages);
    platform::win32::Machine machine(host);
    app::frmMain form(machine.services);
    bool started = false;
    platform::win32::GuardEvent(messages, [&] {
        form.Load();
        if (form.Loaded()) form.Show();
        started = true;
    });
    // A start that failed leaves no window by which the user could end the program.
    if (started) host.Run();
    return 0;
}
