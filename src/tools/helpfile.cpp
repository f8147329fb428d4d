#include "tools/helpfile.h"

#include <algorithm>
#include <string>

#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/program.h"
#include "runtime/failure.h"

namespace tools {
namespace {

// The program's directory is absolute already, so that only the slash is left to turn.
std::string PathOfHelp(const platform::Machine& machine) {
    std::string path = machine.program.Directory() + "/Anleitung.mht";
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

}  // namespace

void ShowHelp(const platform::Machine& machine) {
    try {
        // The starting process has no window worth seeing; the browser opens its own.
        machine.processes.Start("rundll32.exe url.dll,FileProtocolHandler " + PathOfHelp(machine),
                                platform::Processes::HiddenWindow);
    } catch (const runtime::Failure& failure) {
        machine.messages.Show("Die Hilfe kann nicht aufgerufen werden: " + failure.description,
                              platform::message::Critical, "Quillmore Hilfe");
    }
}

}  // namespace tools
