#include "cmd/commandline.h"

#include <algorithm>

namespace cmd {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// Backslashes in it are what they are in every path.
void PassProgram(std::string_view& line) {
    if (line.starts_with('"')) {
        const std::size_t end = line.find('"', 1);
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
        return;
    }
    const auto* end = std::find_if(line.begin(), line.end(),
                                   [](char c) { return static_cast<unsigned char>(c) <= ' '; });
    line.remove_prefix(static_cast<std::size_t>(end - line.begin()));
}

std::string TakeArgument(std::string_view& line) {
    std::string argument;
    bool quoted = false;
    while (!line.empty() && (quoted || !IsBlank(line.front()))) {
        const std::size_t backslashes = std::min(line.find_first_not_of('\\'), line.size());
        line.remove_prefix(backslashes);
        if (!line.starts_with('"')) {
            argument.append(backslashes, '\\');
            if (backslashes > 0) continue;
            argument += line.front();
            line.remove_prefix(1);
            continue;
        }
        line.remove_prefix(1);
        argument.append(backslashes / 2, '\\');
        if (backslashes % 2 != 0) {
            argument += '"';
            continue;
        }
        if (quoted && line.starts_with('"')) {
            argument += '"';
            line.remove_prefix(1);
        }
        quoted = !quoted;
    }
    return argument;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view line) {
    std::vector<std::string> arguments;
    PassProgram(line);
    for (;;) {
        while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
        if (line.empty()) return arguments;
        arguments.push_back(TakeArgument(line));
    }
}

}  // namespace cmd
