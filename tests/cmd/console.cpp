#include "cmd/console.h"

namespace cmd_test {

int Program::Run(const std::vector<std::string>& arguments) {
    console.out.clear();
    console.err.clear();
    return cmd::Run(arguments, machine.services, wide, console);
}

std::vector<std::string> Program::OutLines() const {
    return LinesOf(console.out);
}

std::vector<std::string> Program::ErrLines() const {
    return LinesOf(console.err);
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = text.find('\n', begin)) != std::string::npos;
         begin = end + 1) {
        lines.push_back(text.substr(begin, end - begin));
    }
    if (begin < text.size()) lines.push_back(text.substr(begin));
    return lines;
}

}  // namespace cmd_test
