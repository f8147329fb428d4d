#include "dialogs/substcommands.h"

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

}  // namespace dialogs
