#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/wideregistry.h"
#include "tweaks/option.h"

namespace cmd {

using Root = platform::WideRegistry::Root;

// A value's place, its key spelled as the catalogue does but for a backslash at the end.
struct Place {
    Root root = 0;
    std::string key;
    // "" is the key's default value.
    std::string value;
};

// A control that the passes read or write: an option's own, or a box that goes along with an
// option's check box.
struct Setting {
    // The page's name, without the blank that its tab has.
    std::string_view page;
    std::string_view control;
    // Where it is read or written, an option's own place first, each place once.
    std::vector<Place> places;
};

// In the order of the pages, a box behind its check box.
const std::vector<Setting>& Settings();

inline bool IsCheckBox(std::string_view control) {
    return control.starts_with("chk");
}

// A key in which the write pass may do something to these values.
struct TouchedKey {
    Root root = 0;
    std::string path;
    std::vector<std::string> values;
    // Some option deletes the key, and with it all values.
    bool mayGo = false;
};

// Every place that the write pass may touch, whatever the controls hold; each key once.
const std::vector<TouchedKey>& TouchedKeys();

// The key if the write pass may touch values of it; nullptr for any other. Letters' case plays no
// part in names.
const TouchedKey* FindTouchedKey(Root root, std::string_view path);
bool IsTouched(const TouchedKey& key, std::string_view valueName);
// Whether the key is one in which the write pass may do something, or lies above one, so that the
// pass may make it.
bool LeadsToTouched(Root root, std::string_view path);

// "HKLM\Software", and "HKLM\Software [Name]" of a value; the default value's name is "@", and is
// no other value's.
std::string PlaceText(Root root, std::string_view path);
std::string PlaceText(Root root, std::string_view path, std::string_view valueName);

// As registration files have it, and back; 0 for a root that the catalogue does not know.
std::string LongRootName(Root root);
Root RootOfLongName(std::string_view name);

}  // namespace cmd
