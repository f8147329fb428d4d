#include "endtoend/wholeregistry.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "endtoend/registrydump.h"

namespace endtoend {
namespace {

constexpr std::string_view FirstLine = "WINE REGISTRY Version 2\n";

// Without the dates of the keys, which stand behind the key and on a line of their own.
std::string WithoutDates(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.starts_with("#time=")) continue;
        if (line.starts_with('[')) line = line.substr(0, line.rfind(']') + 1);
        // Wine dates its display driver anew whenever a program is the first on its desktop.
        if (line.starts_with("\"DriverDate")) continue;
        kept.append(line).append(1, '\n');
    }
    return kept;
}

// Each key's lines by the line that names it.
using Sections = std::unordered_map<std::string_view, std::string_view>;

Sections SectionsOf(std::string_view text) {
    Sections sections;
    std::size_t begin = text.find("\n[");
    while (begin != std::string_view::npos) {
        ++begin;
        const std::size_t end = text.find("\n[", begin);
        const std::string_view section = text.substr(
            begin, end == std::string_view::npos ? std::string_view::npos : end + 1 - begin);
        sections[section.substr(0, section.find('\n'))] = section;
        begin = end;
    }
    return sections;
}

RegistryState OnlyIn(const Sections& those, const Sections& others, const std::string& root) {
    std::string text(FirstLine);
    for (const auto& [name, section] : those) {
        const auto other = others.find(name);
        if (other == others.end() || other->second != section) text.append(section);
    }
    RegistryState state;
    ParseDump(text, root, state);
    // A key is told of when the others lack it; one that has only others below it is in no text.
    std::erase_if(state, [](const auto& entry) { return !entry.second; });
    for (const auto& [name, section] : those) {
        if (others.contains(name)) continue;
        RegistryState way;
        ParseDump(std::string(FirstLine).append(name).append("\n"), root, way);
        const auto longest =
            std::max_element(way.begin(), way.end(), [](const auto& one, const auto& other) {
                return one.first.size() < other.first.size();
            });
        state.insert(*longest);
    }
    return state;
}

void AddDifferences(const std::string& before, const std::string& after, const std::string& root,
                    bool endsCount, std::vector<std::string>& lines) {
    if (before == after) return;
    const Sections was = SectionsOf(before);
    const Sections is = SectionsOf(after);
    RegistryState left = OnlyIn(was, is, root);
    RegistryState right = OnlyIn(is, was, root);
    if (!endsCount) {
        for (RegistryState* state : {&left, &right}) {
            for (auto& [path, value] : *state) {
                if (!value) continue;
                const bool isText = value->type == REG_SZ || value->type == REG_EXPAND_SZ ||
                                    value->type == REG_MULTI_SZ;
                const std::string& bytes = value->bytes;
                if (!isText || bytes.size() % 2 != 0 || bytes.ends_with(std::string(2, '\0'))) {
                    continue;
                }
                value->bytes.append(2, '\0');
            }
        }
    }
    const std::vector<std::string> found = Differences(left, right);
    lines.insert(lines.end(), found.begin(), found.end());
    if (!endsCount || !found.empty()) return;
    // Names that differ in their letters' case alone.
    for (const auto& [name, section] : was) {
        const auto other = is.find(name);
        if (other != is.end() && other->second == section) continue;
        lines.push_back("spelt otherwise: " + std::string(section));
    }
}

}  // namespace

WholeRegistry WholeRegistry::Now() {
    WholeRegistry now;
    now.machine_ = WithoutDates(SavedTree("HKLM", ""));
    now.user_ = WithoutDates(SavedTree("HKCU", ""));
    return now;
}

std::vector<std::string> WholeRegistry::DifferencesTo(const WholeRegistry& later) const {
    std::vector<std::string> lines;
    AddDifferences(machine_, later.machine_, "hklm", true, lines);
    AddDifferences(user_, later.user_, "hkcu", true, lines);
    return lines;
}

std::vector<std::string> WholeRegistry::DifferencesButForEnds(const WholeRegistry& later) const {
    std::vector<std::string> lines;
    AddDifferences(machine_, later.machine_, "hklm", false, lines);
    AddDifferences(user_, later.user_, "hkcu", false, lines);
    return lines;
}

}  // namespace endtoend
