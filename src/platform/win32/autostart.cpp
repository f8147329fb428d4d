#include "platform/win32/autostart.h"

#include "platform/win32/text.h"
#include "platform/win32/uservalue.h"

namespace platform::win32 {
namespace {

constexpr wchar_t RunKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

}  // namespace

bool AutoStart::AutoStartAdd(std::string_view directory, std::string_view title,
                             std::string_view executable) {
    std::wstring command = L'"' + ToWide(directory);
    if (!command.ends_with(L'\\')) command += L'\\';
    command += ToWide(executable) + L".exe\"";
    return WriteUserText(RunKey, ToWide(title), command);
}

bool AutoStart::AutoStartRemove(std::string_view title) {
    return RemoveUserValue(RunKey, ToWide(title));
}

bool AutoStart::AutoStartExists(std::string_view title) const {
    return ReadUserText(RunKey, ToWide(title)).has_value();
}

}  // namespace platform::win32
