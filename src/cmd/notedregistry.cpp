#include "cmd/notedregistry.h"

#include <algorithm>

namespace cmd {

using Result = platform::Registry::Result;

Result NotedRegistry::Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) {
    const Result result = inner_.Open(parent, path, access, opened);
    const Opened below = Below(parent, path);
    if (result == Success) open_[opened] = below;
    return Noted(result, PlaceText(below.root, below.path));
}

Result NotedRegistry::Create(Key parent, std::string_view name, std::uint32_t access,
                             Key& created) {
    const Result result = inner_.Create(parent, name, access, created);
    const Opened below = Below(parent, name);
    if (result == Success) open_[created] = below;
    return Noted(result, PlaceText(below.root, below.path));
}

Result NotedRegistry::Query(Key key, std::string_view valueName, std::uint32_t& type,
                            std::uint8_t* data, std::uint32_t& size) {
    return NotedValue(inner_.Query(key, valueName, type, data, size), key, valueName);
}

Result NotedRegistry::Set(Key key, std::string_view valueName, std::uint32_t type,
                          const std::uint8_t* data, std::uint32_t size) {
    return NotedValue(inner_.Set(key, valueName, type, data, size), key, valueName);
}

Result NotedRegistry::RemoveValue(Key key, std::string_view valueName) {
    return NotedValue(inner_.RemoveValue(key, valueName), key, valueName);
}

Result NotedRegistry::RemoveKey(Key parent, std::string_view path) {
    const Opened below = Below(parent, path);
    return Noted(inner_.RemoveKey(parent, path), PlaceText(below.root, below.path));
}

Result NotedRegistry::EnumerateKey(Key key, std::uint32_t index, std::string& name) {
    return NotedKey(inner_.EnumerateKey(key, index, name), key);
}

Result NotedRegistry::LongestValueName(Key key, std::uint32_t& length) {
    return NotedKey(inner_.LongestValueName(key, length), key);
}

Result NotedRegistry::EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                                     std::string& name) {
    return NotedKey(inner_.EnumerateValue(key, index, room, name), key);
}

Result NotedRegistry::Close(Key key) {
    open_.erase(key);
    return inner_.Close(key);
}

NotedRegistry::Opened NotedRegistry::Below(Key parent, std::string_view path) const {
    Opened below{parent, ""};
    if (const auto found = open_.find(parent); found != open_.end()) below = found->second;
    if (path.ends_with('\\')) path.remove_suffix(1);
    if (!path.empty()) below.path.append(below.path.empty() ? "" : "\\").append(path);
    return below;
}

Result NotedRegistry::Noted(Result result, const std::string& place) {
    // What a caller asks again for, with more room or of the next key, is no refusal either.
    if (result == Success || result == FileNotFound || result == NoMoreItems ||
        result == MoreData) {
        return result;
    }
    const Refusal refusal{place, result};
    if (std::find(refused_.begin(), refused_.end(), refusal) == refused_.end()) {
        refused_.push_back(refusal);
    }
    return result;
}

Result NotedRegistry::NotedKey(Result result, Key key) {
    const Opened opened = Below(key, "");
    return Noted(result, PlaceText(opened.root, opened.path));
}

Result NotedRegistry::NotedValue(Result result, Key key, std::string_view valueName) {
    const Opened opened = Below(key, "");
    return Noted(result, PlaceText(opened.root, opened.path, valueName));
}

}  // namespace cmd
