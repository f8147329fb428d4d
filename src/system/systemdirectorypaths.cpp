#include "system/systemdirectorypaths.h"

namespace sys {

std::string clsGetSystemDirectoryPaths::WindowsDirectory() const {
    return facts_.WindowsDirectory();
}

std::string clsGetSystemDirectoryPaths::SystemDirectory() const {
    return facts_.SystemDirectory();
}

}  // namespace sys
