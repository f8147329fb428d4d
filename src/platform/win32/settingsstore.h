#pragma once

#include "platform/settingsstore.h"

namespace platform::win32 {

class SettingsStore final : public platform::SettingsStore {
  public:
    std::string Get(std::string_view title, std::string_view section, std::string_view key,
                    std::string_view fallback) const override;
    void Save(std::string_view title, std::string_view section, std::string_view key,
              std::string_view text) override;
    void DeleteSection(std::string_view title, std::string_view section) override;
};

}  // namespace platform::win32
