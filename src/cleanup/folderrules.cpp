#include "cleanup/folderrules.h"

#include <algorithm>
#include <array>

#include "platform/machine.h"
#include "runtime/text.h"
#include "utilities/systemdirectorypaths.h"
#include "utilities/systemfacts.h"

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
    const utilities::clsGetSystemDirectoryPaths directories(machine.facts);
    sendTo_ = runtime::ToUpper(utilities::GetSpecialFolderPath(machine.shell, SendToFolder));
    windows_ = runtime::ToUpper(directories.WindowsDirectory());
    system_ = runtime::ToUpper(directories.SystemDirectory());
}

bool FolderRules::IsExcludedFolder(std::string_view path) const {
    const std::string upper = runtime::ToUpper(path);
    const auto begins = [&](std::string_view start) { return upper.starts_with(start); };
    const auto contains = [&](std::string_view part) {
        return path.find(part) != std::string_view::npos;
    };
    return upper == sendTo_ || upper.find("SENDTO") != std::string::npos ||
           std::any_of(AllUsers.begin(), AllUsers.end(), begins) ||
           upper == windows_ + "\\ALL USERS" || upper == windows_ + "\\SENDTO" ||
           // The first of these covers the other three, which stand for themselves all the same.
           begins(system_) || upper == system_ + "\\SECURITY" || begins(system_ + "\\CATROOT2") ||
           begins(system_ + "\\USMT") || std::any_of(AsSpelled.begin(), AsSpelled.end(), contains);
}

}  // namespace cleanup
