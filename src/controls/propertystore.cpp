#include "controls/propertystore.h"

#include <cmath>

#include "runtime/number.h"

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

}  // namespace controls
