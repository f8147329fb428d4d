#include "platform/dryrun/kept.h"

#include <algorithm>

#include "runtime/text.h"

namespace platform::dryrun {
namespace {

auto PlaceOf(std::string_view title, std::string_view section) {
    return std::pair(runtime::ToLower(title), runtime::ToLower(section));
}

}  // namespace

Processes::Handle Processes::Create(std::string_view commandLine, std::uint32_t,
                                    const StartupInfo&) {
    started.emplace_back(commandLine);
    return NewHandle();
}

// An id that no call opens.
std::uint32_t Processes::Start(std::string_view commandLine, std::int32_t) {
    started.emplace_back(commandLine);
    return 0;
}

Processes::Handle Processes::Open(std::uint32_t, std::uint32_t) {
    return 0;
}

std::optional<std::uint32_t> Processes::ExitCode(Handle process) {
    const bool isOpen = std::find(open_.begin(), open_.end(), process) != open_.end();
    return isOpen ? std::optional<std::uint32_t>(0) : std::nullopt;
}

void Processes::WaitForEnd(Handle) {}

bool Processes::Close(Handle process) {
    return std::erase(open_, process) > 0;
}

Processes::Handle Processes::NewHandle() {
    open_.push_back(++last_);
    return last_;
}

int EnterKey(const Message& message) {
    constexpr int Buttons = 0x0F;
    return (message.style & Buttons) == message::YesNo ? message::Yes : message::Ok;
}

int Messages::Show(std::string_view text, int style, std::string_view title) {
    shown.push_back({std::string(text), style, std::string(title)});
    return answer_(shown.back());
}

std::string SettingsStore::Get(std::string_view title, std::string_view section,
                               std::string_view key, std::string_view fallback) const {
    const auto found = sections_.find(PlaceOf(title, section));
    if (found == sections_.end()) return inner_.Get(title, section, key, fallback);
    const auto text = found->second.texts.find(runtime::ToLower(key));
    if (text != found->second.texts.end()) return text->second;
    return found->second.readsThrough ? inner_.Get(title, section, key, fallback)
                                      : std::string(fallback);
}

void SettingsStore::Save(std::string_view title, std::string_view section, std::string_view key,
                         std::string_view text) {
    sections_[PlaceOf(title, section)].texts[runtime::ToLower(key)] = text;
}

void SettingsStore::DeleteSection(std::string_view title, std::string_view section) {
    sections_[PlaceOf(title, section)] = {false, {}};
}

bool AutoStart::AutoStartAdd(std::string_view, std::string_view title, std::string_view) {
    entries_[runtime::ToLower(title)] = true;
    return true;
}

bool AutoStart::AutoStartRemove(std::string_view title) {
    const bool was = AutoStartExists(title);
    entries_[runtime::ToLower(title)] = false;
    return was;
}

bool AutoStart::AutoStartExists(std::string_view title) const {
    const auto found = entries_.find(runtime::ToLower(title));
    return found == entries_.end() ? inner_.AutoStartExists(title) : found->second;
}

}  // namespace platform::dryrun
