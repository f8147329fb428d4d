#include "dialogs/substcommands.h"

#include <algorithm>

#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/machine.h"
#include "platform/processes.h"

namespace dialogs {

using platform::Registry;

std::string AddBackslash(std::string_view text) {
    return std::string(text) + (text.ends_with('\\') ? "" : "\\");
}

std::int32_t RunHidden(platform::Processes& processes, const std::string& command) {
    return static_cast<std::int32_t>(processes.Start(command, platform::Processes::HiddenWindow));
}

void RunKeyWrite(const platform::Machine& machine, Registry::Key root, std::string_view key,
                 std::string_view name, std::string_view value) {
    Registry& registry = machine.registry;
    Registry::Key opened = 0;
    const std::string bytes = machine.locale.ToAnsi(value);
    registry.Create(root, key, Registry::MayDoAll, opened);
    registry.Set(opened, name, Registry::String,
                 reinterpret_cast<const std::uint8_t*>(bytes.data()),
                 static_cast<std::uint32_t>(bytes.size()));
    registry.Close(opened);
}

void RunKeyDelete(Registry& registry, Registry::Key root, std::string_view key,
                  std::string_view name) {
    Registry::Key opened = 0;
    registry.Open(root, key, Registry::MayDoAll, opened);
    registry.RemoveValue(opened, name);
    registry.Close(opened);
}

std::string ShortPath(const platform::Folders& folders, std::string_view path) {
    constexpr std::size_t Room = 164;
    return folders.ShortPath(path, Room);
}

std::vector<std::string> ItemsOf(std::string_view bytes) {
    std::vector<std::string> items;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of(",\r\n"), bytes.size());
        items.emplace_back(bytes.substr(0, end));
        const std::size_t length = bytes.substr(end, 2) == "\r\n" ? 2 : 1;
        bytes.remove_prefix(std::min(end + length, bytes.size()));
    }
    return items;
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    std::size_t end;
    while ((end = text.find(separator)) != std::string_view::npos) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.emplace_back(text);
    return parts;
}

}  // namespace dialogs
