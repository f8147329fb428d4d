#include "platform/simulated/journal.h"

namespace platform::simulated {

std::vector<std::string> Journal::Calls(std::string_view name) const {
    std::vector<std::string> found;
    for (const std::string& line : lines_) {
        if (line.substr(0, line.find(' ')) == name) found.push_back(line);
    }
    return found;
}

std::string Journal::Text() const {
    std::string text;
    for (const std::string& line : lines_) text += line + "\n";
    return text;
}

void Journal::Clear() {
    cleared_ += lines_.size();
    lines_.clear();
    calls_ = 0;
}

}  // namespace platform::simulated
