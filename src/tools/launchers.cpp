#include "tools/launchers.h"

#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/shell.h"
#include "system/processwait.h"
#include "system/systemdirectorypaths.h"

namespace tools {
namespace {

namespace message = platform::message;
using platform::Processes;

// What the shell's property sheet is to show; 2 is the system.
constexpr int SystemObject = 2;

}  // namespace

void WaitForRestoreTool(const platform::Machine& machine) {
    const sys::clsGetSystemDirectoryPaths paths(machine.systemFacts);
    sys::ShellWait(machine.processes, paths.SystemDirectory() + "\\restore\\rstrui.exe", true);
}

void Launchers::LoadExtern(std::string_view Filename) const {
    report_("LoadExtern", [&] { Start(Filename); });
}

void Launchers::LoadExternMSC(std::string_view Filename, std::string_view Parameter) const {
    report_("LoadExternMSC", [&] { OpenIn("\\System32", Filename, Parameter); });
}

// Reports under the name of its sister, on purpose: whoever reads the log knows that name.
void Launchers::LoadExternMSC2(std::string_view Filename) const {
    report_("LoadExternMSC", [&] { OpenIn("\\System32\\com", Filename, ""); });
}

void Launchers::CheckSystemFiles() const {
    const int answer = machine_.messages.Show(
        "Für diesen Vorgang benötigen Sie die Windows XP Installations CD\r\n\r\n"
        "Möchten Sie fortfahren?",
        message::YesNo + message::Question, "Überprüfung der Windows XP Systemdateien");
    if (answer == message::Yes) LoadExtern("\\System32\\sfc.exe /scannow");
}

void Launchers::OpenSystemProperties() const {
    report_("lblSystem_Click", [&] { machine_.shell.ObjectProperties(SystemObject); });
}

void Launchers::cmdMSConfig_Click() const {
    report_("cmdMSConfig_Click", [&] { Start("\\PCHEALTH\\HELPCTR\\Binaries\\msconfig"); });
}

std::string Launchers::WindowsDirectory() const {
    return sys::clsGetSystemDirectoryPaths(machine_.systemFacts).WindowsDirectory();
}

void Launchers::Start(std::string_view filename) const {
    machine_.processes.Start(WindowsDirectory() + std::string(filename), Processes::NormalWindow);
}

void Launchers::OpenIn(std::string_view folder, std::string_view filename,
                       std::string_view parameter) const {
    machine_.shell.Execute("Open", filename, parameter, WindowsDirectory() + std::string(folder),
                           Processes::NormalWindow);
}

}  // namespace tools
