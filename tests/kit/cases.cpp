#include "kit/cases.h"

#include <algorithm>

namespace kit {
namespace {

// "[own] runs", "[bin] never: reason".
void TakeHeading(std::string_view line, Case& now) {
    now.kind = line.substr(1, line.find(']') - 1);
    std::string_view rest = line.substr(line.find(']') + 1);
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const auto colon = rest.find(": ");
    now.condition = rest.substr(0, colon);
    now.reason = colon == std::string_view::npos ? "" : rest.substr(colon + 2);
}

}  // namespace

std::vector<Case> CasesOf(std::string_view text) {
    std::vector<Case> cases;
    Case now;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with('[')) {
            TakeHeading(line, now);
            continue;
        }
        const auto colon = line.find(": ");
        if (colon == std::string_view::npos) continue;
        now.suite = line.substr(0, colon);
        now.sentence = line.substr(colon + 2);
        cases.push_back(now);
    }
    return cases;
}

}  // namespace kit
