#include "cleanup/folderrules.h"

#include <algorithm>
#include <array>

#include "platform/machine.h"
#include "runtime/text.h"
#include "system/specialfolders.h"
#include "system/systemdirectorypaths.h"

namespace cleanup {
namespace {

constexpr int SendToFolder = 9;  // CSIDL_SENDTO

// With drive and language as they stand here: profiles in another place are searched.
constexpr std::array<std::string_view, 2> AllUsers = {
    "C:\\DOKUMENTE UND EINSTELLUNGEN\\ALL USERS",
    "C:\\DOCUMENTS AND SETTINGS\\ALL USERS",
};

// Only in small letters, on purpose: a folder that is spelled with capitals is searched.
constexpr std::array<std::string_view, 5> AsSpelled = {
    "symantec shared\\virusdefs", "paprport\\data",    "chaos32",
    "microsoft\\office\\data",    "resources\\themes",
};

}  // namespace

FolderRules::FolderRules(const platform::Machine& machine) {
    const sys::clsGetSystemDirectoryPaths directories(machine.systemFacts);
    const std::string windows = runtime::ToUpper(directories.WindowsDirectory());
    const std::string system = runtime::ToUpper(directories.SystemDirectory());
    whole_ = {runtime::ToUpper(sys::GetSpecialFolderPath(machine.shell, SendToFolder)),
              windows + "\\ALL USERS", windows + "\\SENDTO", system + "\\SECURITY"};
    // The first of these covers the other two and the last one above, which stand for themselves
    // all the same.
    beginnings_ = {system, system + "\\CATROOT2", system + "\\USMT"};
}

bool FolderRules::IsExcludedFolder(std::string_view path) const {
    const std::string upper = runtime::ToUpper(path);
    const auto begins = [&](std::string_view start) { return upper.starts_with(start); };
    const auto contains = [&](std::string_view part) {
        return path.find(part) != std::string_view::npos;
    };
    return upper.find("SENDTO") != std::string::npos ||
           std::any_of(whole_.begin(), whole_.end(),
                       [&](const std::string& folder) { return upper == folder; }) ||
           std::any_of(AllUsers.begin(), AllUsers.end(), begins) ||
           std::any_of(beginnings_.begin(), beginnings_.end(), begins) ||
           std::any_of(AsSpelled.begin(), AsSpelled.end(), contains);
}

}  // namespace cleanup
