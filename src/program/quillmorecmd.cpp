#include <windows.h>

#include <exception>
#include <new>

#include "cmd/commandline.h"
#include "cmd/run.h"
#include "platform/absent/machine.h"
#include "platform/win32/console/surroundings.h"
#include "platform/win32/console/utf16.h"
#include "platform/win32/console/wideregistry.h"
#include "platform/win32/locale.h"
#include "platform/win32/memory.h"
#include "platform/win32/operatingsystem.h"
#include "platform/win32/registry.h"
#include "platform/win32/settingsstore.h"
#include "platform/win32/systemfacts.h"

namespace {

namespace win32 = platform::win32;

int Run(cmd::Surroundings& around) {
    win32::Registry registry;
    win32::SettingsStore settingsStore;
    win32::OperatingSystem operatingSystem;
    win32::SystemFacts systemFacts;
    win32::Memory memory;
    win32::Locale locale;
    platform::absent::Machine machine(
        {registry, settingsStore, operatingSystem, systemFacts, memory, locale});
    win32::WideRegistry wide;
    return cmd::Run(cmd::SplitCommandLine(win32::FromUnits(GetCommandLineW())), machine.services,
                    wide, around);
}

// Where there is no memory left, nothing that takes any can be said.
void SayOutOfMemory() {
    constexpr char text[] = "QuillmoreCmd: Der Arbeitsspeicher reicht nicht.\r\n";
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, sizeof text - 1, &written, nullptr);
}

}  // namespace

int main() {
    try {
        win32::Surroundings around;
        try {
            const int code = Run(around);
            const bool isRight = code == cmd::Fine || code == cmd::Differs;
            return isRight && around.OutputLost() ? cmd::NotAll : code;
        } catch (const std::bad_alloc&) {
            SayOutOfMemory();
        } catch (const std::exception& mistake) {
            around.Err("QuillmoreCmd: " + std::string(mistake.what()) + "\n");
        }
    } catch (...) {
        SayOutOfMemory();
    }
    return cmd::NotAll;
}
