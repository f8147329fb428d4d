#include "regfile/places.h"

#include "runtime/text.h"

namespace regfile {

std::string_view RootNamed(std::string_view name) {
    for (const std::string_view root : {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_CONFIG",
                                        "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS"}) {
        if (runtime::EqualsIgnoringCase(name, root)) return root;
    }
    return {};
}

bool IsPath(std::string_view path) {
    using namespace std::string_view_literals;
    if (path.empty()) return true;
    return !path.starts_with('\\') && !path.ends_with('\\') &&
           path.find("\\\\") == std::string_view::npos &&
           path.find_first_of("\r\n\0"sv) == std::string_view::npos;
}

}  // namespace regfile
