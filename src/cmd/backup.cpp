#include "cmd/backup.h"

#include <algorithm>

#include "cmd/badinput.h"
#include "runtime/text.h"

namespace cmd {
namespace {

using platform::Registry;
using runtime::EqualsIgnoringCase;
using Result = Registry::Result;
using Value = WideRegistry::Value;

// Whether it was found; a refusal is noted.
bool Found(Result result, Refusals& refusals, const std::string& place) {
    if (result == Registry::Success) return true;
    if (result != Registry::FileNotFound) refusals.push_back({place, result});
    return false;
}

// A key as it is there: which of the two, or nobody knows.
enum class Presence { There, Missing, Unknown };

class Reading {
  public:
    Reading(WideRegistry& registry, Refusals& refusals)
        : registry_(registry), refusals_(refusals) {}

    Presence Ask(Root root, std::string_view path) {
        const Result result = registry_.Ask(root, path);
        if (Found(result, refusals_, PlaceText(root, path))) return Presence::There;
        return result == Registry::FileNotFound ? Presence::Missing : Presence::Unknown;
    }

    Presence Read(Root root, std::string_view path, std::string_view name, Value& value) {
        const Result result = registry_.Read(root, path, name, value);
        if (Found(result, refusals_, PlaceText(root, path, name))) return Presence::There;
        return result == Registry::FileNotFound ? Presence::Missing : Presence::Unknown;
    }

    // Those that were found, and whether these are all.
    bool ValueNames(Root root, std::string_view path, std::vector<std::string>& names) {
        return Found(registry_.ValueNames(root, path, names), refusals_, PlaceText(root, path));
    }
    bool KeyNames(Root root, std::string_view path, std::vector<std::string>& names) {
        return Found(registry_.KeyNames(root, path, names), refusals_, PlaceText(root, path));
    }

  private:
    WideRegistry& registry_;
    Refusals& refusals_;
};

bool Contains(const std::vector<std::string>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& other) { return EqualsIgnoringCase(other, name); });
}

void BackUpKey(const TouchedKey& key, Reading& reading, std::vector<regfile::Key>& file) {
    regfile::Key kept{.root = LongRootName(key.root), .path = key.path};
    std::vector<std::string> names = key.values;
    if (key.mayGo) {
        std::vector<std::string> all;
        reading.ValueNames(key.root, key.path, all);
        for (std::string& name : all) {
            if (!Contains(names, name)) names.push_back(std::move(name));
        }
    }
    for (const std::string& name : names) {
        Value value;
        switch (reading.Read(key.root, key.path, name, value)) {
            case Presence::There:
                kept.values.push_back({.name = name, .type = value.type, .bytes = value.bytes});
                break;
            case Presence::Missing:
                kept.values.push_back({.name = name, .removes = true});
                break;
            case Presence::Unknown:
                break;
        }
    }
    file.push_back(std::move(kept));
}

// The path without its last level; "" above the first.
std::string_view Above(std::string_view path) {
    const std::size_t end = path.rfind('\\');
    return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

// The topmost missing key, the one at `path` being missing; nothing when one above it cannot be
// looked at.
std::string_view TopmostMissing(Root root, std::string_view path, Reading& reading) {
    for (std::string_view above = Above(path); !above.empty(); above = Above(above)) {
        switch (reading.Ask(root, above)) {
            case Presence::There:
                return path;
            case Presence::Missing:
                path = above;
                break;
            case Presence::Unknown:
                return {};
        }
    }
    return path;
}

void RemoveOnce(Root root, std::string_view path, std::vector<regfile::Key>& file) {
    const std::string name = LongRootName(root);
    for (const regfile::Key& key : file) {
        if (key.removes && key.root == name && EqualsIgnoringCase(key.path, path)) return;
    }
    file.push_back({.root = name, .path = std::string(path), .removes = true});
}

BadInput NotTouched(const std::string& place, int line) {
    return BadInput(place + " ist kein Ort, den Quillmore ändert", line);
}

class Restoring {
  public:
    Restoring(WideRegistry& registry, Refusals& refusals, std::vector<std::string>& staying)
        : reading_(registry, refusals), staying_(staying) {}

    void Take(const regfile::Key& key) {
        const Root root = RootOfLongName(key.root);
        if (root == 0 || !LeadsToTouched(root, key.path)) {
            throw NotTouched(key.root + "\\" + key.path, key.line);
        }
        if (key.removes) {
            RemoveTree(root, key.path);
        } else {
            TakeValues(root, key);
        }
    }

    Changes Result() {
        std::reverse(taken_.begin(), taken_.end());
        Changes all = std::move(made_);
        all.insert(all.end(), taken_.begin(), taken_.end());
        return all;
    }

  private:
    // The key, then what is in it: what goes is carried out from the end. Returns whether all of
    // it goes.
    bool RemoveTree(Root root, const std::string& path) {
        const Presence presence = reading_.Ask(root, path);
        if (presence != Presence::There) return presence == Presence::Missing;
        if (!LeadsToTouched(root, path)) {
            staying_.push_back(PlaceText(root, path));
            return false;
        }
        const std::size_t place = taken_.size();
        std::vector<std::string> values;
        std::vector<std::string> keys;
        // What cannot be looked through may hold what is somebody else's.
        bool allGoes = reading_.ValueNames(root, path, values);
        allGoes &= reading_.KeyNames(root, path, keys);
        const TouchedKey* touched = FindTouchedKey(root, path);
        for (const std::string& name : values) {
            if (!touched || !(touched->mayGo || IsTouched(*touched, name))) {
                staying_.push_back(PlaceText(root, path, name));
                allGoes = false;
                continue;
            }
            Change change{Change::Kind::DeleteValue, root, path, name};
            Value value;
            change.isBeforeKnown = reading_.Read(root, path, name, value) == Presence::There;
            if (change.isBeforeKnown) change.before = value;
            taken_.push_back(std::move(change));
        }
        for (const std::string& name : keys) {
            allGoes &= RemoveTree(root, path.empty() ? name : path + '\\' + name);
        }
        if (allGoes) {
            taken_.insert(taken_.begin() + static_cast<std::ptrdiff_t>(place),
                          {Change::Kind::DeleteKey, root, path});
        }
        return allGoes;
    }

    void TakeValues(Root root, const regfile::Key& key) {
        const TouchedKey* touched = FindTouchedKey(root, key.path);
        const Presence presence = reading_.Ask(root, key.path);
        if (presence == Presence::Missing) {
            made_.push_back({Change::Kind::CreateKey, root, key.path});
        }
        for (const regfile::Value& value : key.values) {
            if (!touched || !(touched->mayGo || IsTouched(*touched, value.name))) {
                throw NotTouched(PlaceText(root, key.path, value.name), value.line);
            }
            TakeValue(root, key.path, value);
        }
    }

    void TakeValue(Root root, const std::string& path, const regfile::Value& wanted) {
        Value now;
        const Presence presence = reading_.Read(root, path, wanted.name, now);
        if (wanted.removes && presence == Presence::Missing) return;
        Change change{Change::Kind::DeleteValue, root, path, wanted.name};
        if (presence == Presence::There) change.before = now;
        change.isBeforeKnown = presence != Presence::Unknown;
        if (wanted.removes) {
            taken_.push_back(std::move(change));
            return;
        }
        change.kind = Change::Kind::WriteValue;
        change.after = Value{wanted.type, wanted.bytes};
        if (change.before != change.after) made_.push_back(std::move(change));
    }

    Reading reading_;
    std::vector<std::string>& staying_;
    Changes made_;
    Changes taken_;
};

bool IsAtOrBelow(const regfile::Key& key, const regfile::Key& above) {
    const std::string_view path = key.path;
    return key.root == above.root && path.size() >= above.path.size() &&
           (path.size() == above.path.size() || above.path.empty() ||
            path[above.path.size()] == '\\') &&
           EqualsIgnoringCase(path.substr(0, above.path.size()), above.path);
}

bool IsSameKey(const regfile::Key& one, const regfile::Key& other) {
    return one.path.size() == other.path.size() && IsAtOrBelow(one, other);
}

// What the file comes to: of a value that it has twice the last one. A key that it removes and
// makes again would need what is there to go first and come back; no backup has that.
std::vector<regfile::Key> Merged(const std::vector<regfile::Key>& file) {
    std::vector<regfile::Key> merged;
    for (const regfile::Key& key : file) {
        for (const regfile::Key& other : merged) {
            const bool clash = key.removes ? !other.removes && IsAtOrBelow(other, key)
                                           : other.removes && IsAtOrBelow(key, other);
            if (clash) {
                throw BadInput("derselbe Schlüssel wird in Zeile " + std::to_string(other.line) +
                                   (other.removes ? " gelöscht" : " angelegt"),
                               key.line);
            }
        }
        merged.push_back(key);
        merged.back().values.clear();
        for (const regfile::Value& value : key.values) {
            for (regfile::Key& other : merged) {
                if (!IsSameKey(other, key)) continue;
                std::erase_if(other.values, [&](const regfile::Value& earlier) {
                    return EqualsIgnoringCase(earlier.name, value.name);
                });
            }
            merged.back().values.push_back(value);
        }
    }
    return merged;
}

}  // namespace

std::vector<regfile::Key> Backup(WideRegistry& registry, Refusals& refusals) {
    std::vector<regfile::Key> file;
    Reading reading(registry, refusals);
    for (const TouchedKey& key : TouchedKeys()) {
        switch (reading.Ask(key.root, key.path)) {
            case Presence::There:
                BackUpKey(key, reading, file);
                break;
            case Presence::Missing:
                if (const auto path = TopmostMissing(key.root, key.path, reading); !path.empty()) {
                    RemoveOnce(key.root, path, file);
                }
                break;
            case Presence::Unknown:
                break;
        }
    }
    return file;
}

Changes ToRestore(const std::vector<regfile::Key>& file, WideRegistry& registry, Refusals& refusals,
                  std::vector<std::string>& staying) {
    Restoring restoring(registry, refusals, staying);
    for (const regfile::Key& key : Merged(file)) restoring.Take(key);
    return restoring.Result();
}

}  // namespace cmd
