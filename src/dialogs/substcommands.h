#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace platform {
class Folders;
class Processes;
struct Machine;
}  // namespace platform

namespace dialogs {

// The start of each command line that goes to the hidden command shell, whose next word follows
// without a blank, on purpose: that shell takes it so.
inline constexpr std::string_view HiddenShell = "command.com /c";

std::string AddBackslash(std::string_view text);

// Starts the command line with a hidden window and returns the process id. Throws what the start of
// a process throws.
std::int32_t RunHidden(platform::Processes& processes, const std::string& command);

// Write and delete a text of a key. Nothing tells whether they succeeded. The root is passed on as
// it is, also where it is no root at all.
void RunKeyWrite(const platform::Machine& machine, platform::Registry::Key root,
                 std::string_view key, std::string_view name, std::string_view value);
void RunKeyDelete(platform::Registry& registry, platform::Registry::Key root, std::string_view key,
                  std::string_view name);

// The path in 8.3 form; "" when nothing is there, or when it has 164 characters or more.
std::string ShortPath(const platform::Folders& folders, std::string_view path);

}  // namespace dialogs
