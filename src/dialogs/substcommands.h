#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

// The items of a text as they are read one after the other: each ends at a comma or a line's end.
std::vector<std::string> ItemsOf(std::string_view bytes);

// The parts of a text between the separators; none for "".
std::vector<std::string> Split(std::string_view text, std::string_view separator);

}  // namespace dialogs
