// The program itself on the real Windows, but for one thing: it cannot end the session. What it
// asks for goes into a file beside it, a line each: the action and whether it is forced.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>

#include "app/frmmain.h"
#include "platform/session.h"
#include "platform/win32/eventguard.h"
#include "platform/win32/machine.h"
#include "platform/win32/messages.h"
#include "platform/win32/windows/windowhost.h"

namespace {

class NotedSession final : public platform::Session {
  public:
    void ExitSession(std::int32_t action, std::int32_t force) override {
        wchar_t path[MAX_PATH];
        const std::wstring own(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
        std::FILE* file = _wfopen((own + L".session").c_str(), L"ab");
        std::fprintf(file, "%d %d\n", static_cast<int>(action), static_cast<int>(force));
        std::fclose(file);
    }
};

platform::Machine WithSession(const platform::Machine& machine, platform::Session& session) {
    return {
        .forms = machine.forms,
        .registry = machine.registry,
        .settings = machine.settings,
        .files = machine.files,
        .processes = machine.processes,
        .shell = machine.shell,
        .session = session,
        .autostart = machine.autostart,
        .system = machine.system,
        .facts = machine.facts,
        .information = machine.information,
        .memory = machine.memory,
        .windows = machine.windows,
        .display = machine.display,
        .clock = machine.clock,
        .locale = machine.locale,
        .clipboard = machine.clipboard,
        .beeper = machine.beeper,
        .browser = machine.browser,
        .messages = machine.messages,
        .menus = machine.menus,
        .tray = machine.tray,
        .program = machine.program,
    };
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    InitCommonControls();
    platform::win32::Messages messages;
    platform::win32::WindowHost host(messages);
    platform::win32::Machine machine(host);
    NotedSession session;
    app::frmMain form(WithSession(machine.services, session));
    platform::win32::GuardEvent(messages, [&] {
        form.Load();
        form.Show();
    });
    host.Run();
    return 0;
}
