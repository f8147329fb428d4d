#include "tweaks/registerlibrary.h"

#include <string>

#include "platform/processes.h"

namespace tweaks {

void RegisterLibrary(platform::Processes& processes, std::string_view library, bool registered) {
    processes.Start("regsvr32.exe %windir%\\system32\\" + std::string(library) +
                        (registered ? " /s" : " /u /s"),
                    platform::Processes::HiddenWindow);
}

}  // namespace tweaks
