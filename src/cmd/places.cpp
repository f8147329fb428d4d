#include "cmd/places.h"

#include <algorithm>

#include "runtime/text.h"
#include "tweaks/catalogue.h"

namespace cmd {
namespace {

using runtime::EqualsIgnoringCase;
using tweaks::Option;
using tweaks::Step;

struct RootNames {
    Root root;
    const char* brief;
    const char* full;
};

constexpr RootNames Roots[] = {
    {platform::Registry::ClassesRoot, "HKCR", "HKEY_CLASSES_ROOT"},
    {platform::Registry::CurrentUser, "HKCU", "HKEY_CURRENT_USER"},
    {platform::Registry::LocalMachine, "HKLM", "HKEY_LOCAL_MACHINE"},
};

Place PlaceOf(const tweaks::ValuePlace& place) {
    std::string key = place.key;
    if (key.ends_with('\\')) key.pop_back();
    return {platform::Registry::ClassesRoot + static_cast<Root>(place.root), key, place.value};
}

void AddOnce(std::vector<Place>& places, Place place) {
    const auto isSame = [&](const Place& other) {
        return other.root == place.root && EqualsIgnoringCase(other.key, place.key) &&
               EqualsIgnoringCase(other.value, place.value);
    };
    if (std::none_of(places.begin(), places.end(), isSame)) places.push_back(std::move(place));
}

// The places that may be the option's own.
std::vector<tweaks::ValuePlace> OwnPlaces(const Option& option) {
    std::vector<tweaks::ValuePlace> own;
    if (!*option.place.key) return own;
    own.push_back(option.place);
    if (option.laterKey) {
        own.push_back({option.place.root, option.laterKey, option.place.value});
    }
    return own;
}

template <typename Visit>
void ForEachStep(const Option& option, const Visit& visit) {
    for (const tweaks::Steps* steps : {&option.on, &option.off, &option.always}) {
        for (const Step& step : *steps) visit(step);
    }
}

TouchedKey& TouchedKeyFor(std::vector<TouchedKey>& keys, const Place& place) {
    for (TouchedKey& key : keys) {
        if (key.root == place.root && EqualsIgnoringCase(key.path, place.key)) return key;
    }
    return keys.emplace_back(TouchedKey{place.root, place.key, {}});
}

std::vector<TouchedKey> CollectTouchedKeys() {
    std::vector<TouchedKey> keys;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) {
            for (const tweaks::ValuePlace& own : OwnPlaces(option)) {
                ForEachStep(option, [&](const Step& step) {
                    const Place place = PlaceOf(step.At(own));
                    TouchedKey& key = TouchedKeyFor(keys, place);
                    if (step.action == tweaks::Action::DeleteKey) {
                        key.mayGo = true;
                    } else if (!IsTouched(key, place.value)) {
                        key.values.push_back(place.value);
                    }
                });
            }
        }
    }
    return keys;
}

std::string_view PageName(std::string_view tab) {
    while (tab.starts_with(' ')) tab.remove_prefix(1);
    return tab;
}

// Where the option reads or writes, its own place first, each place once.
std::vector<Place> PlacesOf(const Option& option) {
    std::vector<Place> places;
    for (const tweaks::ValuePlace& own : OwnPlaces(option)) {
        AddOnce(places, PlaceOf(own));
        for (const tweaks::Conditions* conditions : {&option.onWhen, &option.offWhen}) {
            for (const tweaks::Condition& condition : *conditions) {
                AddOnce(places, PlaceOf(condition.At(own)));
            }
        }
        ForEachStep(option, [&](const Step& step) {
            // What goes with its key is no place of its own.
            if (step.action != tweaks::Action::DeleteKey) AddOnce(places, PlaceOf(step.At(own)));
        });
    }
    return places;
}

std::vector<Setting> CollectSettings() {
    std::vector<Setting> settings;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) {
            const std::string_view name = PageName(page.tab);
            settings.push_back({name, option.control, PlacesOf(option)});
            for (const Step& step : option.on) {
                const bool isAlong = step.action == tweaks::Action::WriteTextOf && step.text &&
                                     !tweaks::FindOption(step.text);
                if (isAlong) {
                    settings.push_back({name, step.text, {PlaceOf(step.At(option.place))}});
                }
            }
        }
    }
    return settings;
}

}  // namespace

const std::vector<Setting>& Settings() {
    static const std::vector<Setting> settings = CollectSettings();
    return settings;
}

const std::vector<TouchedKey>& TouchedKeys() {
    static const std::vector<TouchedKey> keys = CollectTouchedKeys();
    return keys;
}

const TouchedKey* FindTouchedKey(Root root, std::string_view path) {
    for (const TouchedKey& key : TouchedKeys()) {
        if (key.root == root && EqualsIgnoringCase(key.path, path)) return &key;
    }
    return nullptr;
}

bool IsTouched(const TouchedKey& key, std::string_view valueName) {
    return std::any_of(key.values.begin(), key.values.end(), [&](const std::string& name) {
        return EqualsIgnoringCase(name, valueName);
    });
}

bool LeadsToTouched(Root root, std::string_view path) {
    return std::any_of(TouchedKeys().begin(), TouchedKeys().end(), [&](const TouchedKey& key) {
        const std::string_view all = key.path;
        const bool ends = path.empty() || all.size() == path.size() ||
                          (all.size() > path.size() && all[path.size()] == '\\');
        return key.root == root && ends && EqualsIgnoringCase(all.substr(0, path.size()), path);
    });
}

std::string PlaceText(Root root, std::string_view path) {
    std::string text = "?";
    for (const RootNames& names : Roots) {
        if (names.root == root) text = names.brief;
    }
    if (!path.empty()) text.append("\\").append(path);
    return text;
}

std::string PlaceText(Root root, std::string_view path, std::string_view valueName) {
    // A value of that very name is told from the default value by quotes.
    const std::string name = valueName == "@"    ? "\"@\""
                             : valueName.empty() ? "@"
                                                 : std::string(valueName);
    return PlaceText(root, path) + " [" + name + "]";
}

std::string LongRootName(Root root) {
    for (const RootNames& names : Roots) {
        if (names.root == root) return names.full;
    }
    return {};
}

Root RootOfLongName(std::string_view name) {
    for (const RootNames& names : Roots) {
        if (name == names.full) return names.root;
    }
    return 0;
}

}  // namespace cmd
