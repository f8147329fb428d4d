#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "cmd/console.h"
#include "cmd/places.h"

namespace fuzz {

using RegistryDump = std::map<std::string, platform::simulated::StoredValue>;

// Whether the place of a dump, "HKLM\Key|name", is one in which QuillmoreCmd may change something:
// a value that is touched, or a key on the way to one.
inline bool IsTouchedPlace(const std::string& place, bool isKey) {
    const std::size_t bar = place.find('|');
    const std::size_t backslash = std::min(place.find('\\'), bar);
    const std::string root = place.substr(0, backslash);
    const platform::Registry::Key key = root == "HKCR"   ? platform::Registry::ClassesRoot
                                        : root == "HKCU" ? platform::Registry::CurrentUser
                                                         : platform::Registry::LocalMachine;
    const std::string path =
        backslash == bar ? "" : place.substr(backslash + 1, bar - backslash - 1);
    if (isKey) return cmd::LeadsToTouched(key, path);
    const cmd::TouchedKey* touched = cmd::FindTouchedKey(key, path);
    return touched && (touched->mayGo || cmd::IsTouched(*touched, place.substr(bar + 1)));
}

// The first place that differs and may not; "" for none.
inline std::string ForeignChange(const RegistryDump& before, const RegistryDump& after) {
    constexpr std::uint32_t EmptyKey = 0xFFFFFFFF;
    for (const auto* side : {&before, &after}) {
        const RegistryDump& other = side == &before ? after : before;
        for (const auto& [place, value] : *side) {
            const auto found = other.find(place);
            if (found != other.end() && found->second == value) continue;
            if (!IsTouchedPlace(place, value.type == EmptyKey)) return place;
        }
    }
    return "";
}

}  // namespace fuzz
