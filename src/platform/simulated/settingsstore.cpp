#include "platform/simulated/settingsstore.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/programtitle.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

std::string Joined(std::string_view title, std::string_view section, std::string_view key) {
    return std::string(title) + "|" + std::string(section) + "|" + std::string(key);
}

std::string Arguments(std::string_view title, std::string_view section, std::string_view key) {
    return Quoted(title) + " " + Quoted(section) + " " + Quoted(key);
}

}  // namespace

std::string SettingsStore::Get(std::string_view title, std::string_view section,
                               std::string_view key, std::string_view fallback) const {
    std::string name = Joined(title, section, key);
    const std::string* stored = faults_.Check("GetSetting", name) ? nullptr : Find(name);
    std::string text = stored ? *stored : std::string(fallback);
    journal_.Note(
        [&] { return "GetSetting " + Arguments(title, section, key) + " -> " + Quoted(text); });
    return text;
}

void SettingsStore::Save(std::string_view title, std::string_view section, std::string_view key,
                         std::string_view text) {
    auto line = journal_.Note(
        [&] { return "SaveSetting " + Arguments(title, section, key) + " " + Quoted(text); });
    std::string name = Joined(title, section, key);
    PassOrThrow(journal_, faults_, line, "SaveSetting", name);
    Store(name, text);
}

void SettingsStore::DeleteSection(std::string_view title, std::string_view section) {
    auto line =
        journal_.Note([&] { return "DeleteSetting " + Quoted(title) + " " + Quoted(section); });
    const std::string start = Joined(title, section, "");
    PassOrThrow(journal_, faults_, line, "DeleteSetting", start);
    std::erase_if(texts_, [&](const auto& entry) {
        return runtime::EqualsIgnoringCase(entry.first.substr(0, start.size()), start);
    });
}

void SettingsStore::Put(std::string_view section, std::string_view key, std::string_view text) {
    Store(Joined(runtime::ProgramTitle, section, key), text);
}

std::optional<std::string> SettingsStore::Stored(std::string_view section,
                                                 std::string_view key) const {
    const std::string* stored = Find(Joined(runtime::ProgramTitle, section, key));
    return stored ? std::optional(*stored) : std::nullopt;
}

// Names keep the case in which they were first stored and are found in any, as in the registry.
const std::string* SettingsStore::Find(std::string_view name) const {
    for (const auto& [stored, text] : texts_) {
        if (runtime::EqualsIgnoringCase(stored, name)) return &text;
    }
    return nullptr;
}

void SettingsStore::Store(const std::string& name, std::string_view text) {
    for (auto& [stored, old] : texts_) {
        if (runtime::EqualsIgnoringCase(stored, name)) {
            old = text;
            return;
        }
    }
    texts_.emplace(name, text);
}

}  // namespace platform::simulated
