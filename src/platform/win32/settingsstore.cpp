#include "platform/win32/settingsstore.h"

#include "platform/win32/text.h"
#include "platform/win32/uservalue.h"
#include "runtime/failure.h"

namespace platform::win32 {
namespace {

std::wstring PathOf(std::string_view title, std::string_view section) {
    return L"Software\\VB and VBA Program Settings\\" + ToWide(title) + L'\\' + ToWide(section);
}

}  // namespace

std::string SettingsStore::Get(std::string_view title, std::string_view section,
                               std::string_view key, std::string_view fallback) const {
    const auto text = ReadUserText(PathOf(title, section), ToWide(key));
    return text ? FromWide(*text) : std::string(fallback);
}

void SettingsStore::Save(std::string_view title, std::string_view section, std::string_view key,
                         std::string_view text) {
    if (!WriteUserText(PathOf(title, section), ToWide(key), ToWide(text))) {
        throw runtime::Failure(runtime::InvalidProcedureCall);
    }
}

void SettingsStore::DeleteSection(std::string_view title, std::string_view section) {
    if (!RemoveUserKey(PathOf(title, section))) {
        throw runtime::Failure(runtime::InvalidProcedureCall);
    }
}

}  // namespace platform::win32
