#include "controls/propertystore.h"

#include <charconv>
#include <cmath>

#include "runtime/number.h"
#include "runtime/text.h"

namespace controls {

PropertyStore::PropertyStore(std::string_view lines) {
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(line.size() < lines.size() ? line.size() + 1 : line.size());
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos) continue;
        entries_.push_back(
            {std::string(line.substr(0, sign)), std::string(line.substr(sign + 1)), nullptr});
    }
}

const PropertyStore::Entry* PropertyStore::Find(std::string_view key) const {
    for (const Entry& entry : entries_) {
        if (entry.key == key) return &entry;
    }
    return nullptr;
}

// The signs of the user's locale do not matter here: whole numbers carry none.
std::optional<std::int64_t> PropertyStore::Number(std::string_view key) const {
    constexpr double Beyond = 4294967296.0;
    const Entry* entry = Find(key);
    if (!entry) return std::nullopt;
    const std::optional<double> number = runtime::ParseNumber(entry->text, {});
    if (!number || std::abs(*number) >= Beyond) return std::nullopt;
    return static_cast<std::int64_t>(std::nearbyint(*number));
}

std::optional<toolkit::Colour> PropertyStore::Colour(std::string_view key) const {
    constexpr std::string_view Sign = "&H";
    const Entry* entry = Find(key);
    if (entry && entry->text.starts_with(Sign)) {
        const char* end = entry->text.data() + entry->text.size();
        toolkit::Colour colour = 0;
        const auto result = std::from_chars(entry->text.data() + Sign.size(), end, colour, 16);
        if (result.ec == std::errc() && result.ptr == end) return colour;
    }
    const auto number = Number(key);
    if (!number) return std::nullopt;
    return static_cast<toolkit::Colour>(*number);
}

std::optional<bool> PropertyStore::Truth(std::string_view key) const {
    if (const Entry* entry = Find(key)) {
        for (const bool truth : {false, true}) {
            if (runtime::EqualsIgnoringCase(entry->text, truth ? "true" : "false")) return truth;
        }
    }
    const auto number = Number(key);
    if (!number) return std::nullopt;
    return *number != 0;
}

}  // namespace controls
