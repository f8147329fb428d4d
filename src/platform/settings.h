#pragma once

#include <string>
#include <string_view>

#include "platform/settingsstore.h"
#include "runtime/programtitle.h"

namespace platform {

// The program's own part of the settings store.
class Settings {
  public:
    explicit Settings(SettingsStore& store) : store_(store) {}

    std::string GetSetting(std::string_view section, std::string_view key,
                           std::string_view fallback = "") const {
        return store_.Get(runtime::ProgramTitle, section, key, fallback);
    }
    void SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
        store_.Save(runtime::ProgramTitle, section, key, value);
    }

  private:
    SettingsStore& store_;
};

}  // namespace platform
