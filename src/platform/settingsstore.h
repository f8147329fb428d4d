#pragma once

#include <string>
#include <string_view>

namespace platform {

// The per-user map of (application title, section, key) to text that the platform keeps for
// programs, under HKEY_CURRENT_USER\Software\VB and VBA Program Settings, as REG_SZ values.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    // The text, or `fallback` when the key is absent, unreadable or holds no text. Never fails.
    virtual std::string Get(std::string_view title, std::string_view section, std::string_view key,
                            std::string_view fallback) const = 0;

    // Throws Failure InvalidProcedureCall when the store cannot be written.
    virtual void Save(std::string_view title, std::string_view section, std::string_view key,
                      std::string_view text) = 0;

    // Takes the section away with all its keys; one that is not there is passed over. Throws
    // Failure InvalidProcedureCall when the store cannot be written.
    virtual void DeleteSection(std::string_view title, std::string_view section) = 0;
};

}  // namespace platform
