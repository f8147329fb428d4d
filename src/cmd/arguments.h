#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cmd {

enum class Verb { Help, State, Profile, Plan, Backup, Apply, Restore };

// What the user wants, by the command line.
struct Arguments {
    Verb verb = Verb::Help;
    // The profile of plan and apply, which may lack, and the file of the others.
    std::string file = {};
    // In the order in which they are used.
    std::vector<std::string> presets = {};
    // Of plan and of apply.
    std::string regFile = {};
    std::string backupFile = {};
    bool csv = false;
    bool yes = false;
    bool raw = false;
    bool utf8 = false;
};

// The arguments behind the program's name. Commands and switches in any letter case, switches with
// a slash or a hyphen, before or behind everything else. Throws BadInput.
Arguments ParseArguments(const std::vector<std::string>& given);

}  // namespace cmd
