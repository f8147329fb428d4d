#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/settingsstore.h"

namespace platform::simulated {

class Faults;
class Journal;

class SettingsStore final : public platform::SettingsStore {
  public:
    SettingsStore(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::string Get(std::string_view title, std::string_view section, std::string_view key,
                    std::string_view fallback) const override;
    void Save(std::string_view title, std::string_view section, std::string_view key,
              std::string_view text) override;
    void DeleteSection(std::string_view title, std::string_view section) override;

    // Seeding and looking under the program's own title, unjournalled.
    void Put(std::string_view section, std::string_view key, std::string_view text);
    std::optional<std::string> Stored(std::string_view section, std::string_view key) const;
    // Everything as "title|section|key" -> text.
    const std::map<std::string, std::string>& All() const { return texts_; }

  private:
    const std::string* Find(std::string_view name) const;
    void Store(const std::string& name, std::string_view text);

    Journal& journal_;
    Faults& faults_;
    std::map<std::string, std::string> texts_;
};

}  // namespace platform::simulated
