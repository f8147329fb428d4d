#include "utilities/systemdirectorypaths.h"

namespace utilities {

std::string clsGetSystemDirectoryPaths::WindowsDirectory() const {
    return facts_.WindowsDirectory();
}

std::string clsGetSystemDirectoryPaths::SystemDirectory() const {
    return facts_.SystemDirectory();
}

}  // namespace utilities
