#pragma once

#include <string_view>

namespace platform {
class Processes;
}

namespace tweaks {

// Starts the command that registers a library of the system directory, or takes it out again. The
// process gets "%windir%" as it stands, and nobody waits for it.
void RegisterLibrary(platform::Processes& processes, std::string_view library, bool registered);

}  // namespace tweaks
