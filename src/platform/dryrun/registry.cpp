#include "platform/dryrun/registry.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "runtime/text.h"

namespace platform::dryrun {
namespace {

using Result = Registry::Result;

constexpr Registry::Key HandleStep = 4;
// The right to delete a key.
constexpr std::uint32_t MayDelete = 0x10000;

bool IsText(std::uint32_t type) {
    return type == Registry::String || type == Registry::ExpandString ||
           type == Registry::MultiString;
}

Result Told(const RegistryValue& value, std::uint32_t& type, std::uint8_t* data,
            std::uint32_t& size) {
    const auto needed = static_cast<std::uint32_t>(value.bytes.size());
    const std::uint32_t room = std::exchange(size, needed);
    type = value.type;
    if (!data) return Registry::Success;
    if (room < needed) return Registry::MoreData;
    if (needed == 0) return Registry::Success;
    std::memcpy(data, value.bytes.data(), needed);
    // A text without its end gets one where there is room.
    if (IsText(type) && room > needed && data[needed - 1] != 0) data[needed] = 0;
    return Registry::Success;
}

bool BeginsWithBackslash(std::string_view path) {
    return path.starts_with('\\');
}

}  // namespace

Registry::Registry(platform::Registry& inner, const platform::Locale& locale)
    : inner_(inner), locale_(locale), nextHandle_(HandleStep) {
    for (std::size_t i = 0; i < roots_.size(); ++i) {
        roots_[i] = std::make_shared<RegistryNode>();
        roots_[i]->root = ClassesRoot + static_cast<Key>(i);
    }
}

Registry::~Registry() {
    for (const auto& [key, handle] : handles_) {
        if (handle.inside) inner_.Close(handle.inside);
    }
}

Result Registry::Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) {
    Handle from;
    if (Result result = Look(parent, from); result != Success) return result;
    if (BeginsWithBackslash(path)) return BadPathName;
    Handle handle;
    const Result result = OpenBelow(from.node, NamesOf(path), access, handle);
    if (result == Success) opened = NewHandle(std::move(handle));
    return result;
}

Result Registry::Create(Key parent, std::string_view name, std::uint32_t access, Key& created) {
    Handle from;
    if (Result result = Look(parent, from); result != Success) return result;
    if (BeginsWithBackslash(name)) return BadPathName;
    const Names names = NamesOf(name);
    Handle handle;
    Result result = OpenBelow(from.node, names, access, handle);
    if (result == FileNotFound) {
        NodeRef node = from.node;
        result = MakePath(node, names, access);
        if (result == Success) result = OpenBelow(node, {}, access, handle);
    }
    if (result == Success) created = NewHandle(std::move(handle));
    return result;
}

Result Registry::Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& size) {
    Handle handle;
    if (Result result = Look(key, handle); result != Success) return result;
    const std::string name = AsStored(valueName);
    const auto found = handle.node->values.find(Folded(name));
    const bool isPending = found != handle.node->values.end();
    if (!isPending && handle.inside) return inner_.Query(handle.inside, name, type, data, size);
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    if (!isPending || !found->second.value) return FileNotFound;
    return Told(*found->second.value, type, data, size);
}

Result Registry::Set(Key key, std::string_view valueName, std::uint32_t type,
                     const std::uint8_t* data, std::uint32_t size) {
    Handle handle;
    if (Result result = Use(key, MaySetValue, handle); result != Success) return result;
    const std::string name = AsStored(valueName);
    if (LengthOf(name) > ValueNameLimit) return InvalidParameter;
    RegistryValue value{type, {}};
    if (data) value.bytes.assign(data, data + size);
    const auto [entry, isNew] = handle.node->values.try_emplace(Folded(name));
    PendingValue& pending = entry->second;
    if (!pending.value) pending = {name, std::nullopt, !isNew};
    pending.value = std::move(value);
    return Success;
}

Result Registry::RemoveValue(Key key, std::string_view valueName) {
    Handle handle;
    if (Result result = Use(key, MaySetValue, handle); result != Success) return result;
    const std::string name = AsStored(valueName);
    if (!HasValue(*handle.node, name)) return FileNotFound;
    handle.node->values.insert_or_assign(Folded(name), PendingValue{name, std::nullopt});
    return Success;
}

Result Registry::RemoveKey(Key parent, std::string_view path) {
    Handle from;
    if (Result result = Look(parent, from); result != Success) return result;
    if (BeginsWithBackslash(path)) return BadPathName;
    NodeRef node = from.node;
    Names names = NamesOf(path);
    if (Result result = Descend(node, names); result != Success) return result;
    for (const std::string& name : names) {
        if (!IsInside(*node, name)) return FileNotFound;
        node = Child(*node, name);
    }
    const std::uint32_t rights = node->isInside ? MayDoAll | MayDelete : MayDoAll;
    if (node->depth == 0 || Rights(*node, rights) != Success || HasChildren(*node)) {
        return AccessDenied;
    }
    node->deleted = true;
    node->values.clear();
    if (!node->isInside) node->parent->children.erase(Folded(node->name));
    return Success;
}

Result Registry::EnumerateKey(Key key, std::uint32_t index, std::string& name) {
    Handle handle;
    if (Result result = Look(key, handle); result != Success) return result;
    if (handle.inside && ShowsInnerKeys(*handle.node)) {
        return inner_.EnumerateKey(handle.inside, index, name);
    }
    if (Result result = Use(key, MayEnumerateSubKeys, handle); result != Success) return result;
    const auto names = KeyNames(*handle.node, handle.inside);
    if (index >= names.size()) return NoMoreItems;
    if (!names[index] || LengthOf(*names[index]) >= EnumerationRoom) return MoreData;
    name = *names[index];
    return Success;
}

Result Registry::LongestValueName(Key key, std::uint32_t& length) {
    Handle handle;
    if (Result result = Look(key, handle); result != Success) return result;
    if (handle.inside && handle.node->values.empty()) {
        return inner_.LongestValueName(handle.inside, length);
    }
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    std::size_t longest = 0;
    for (const std::string& name : ValueNames(*handle.node, handle.inside)) {
        longest = std::max(longest, LengthOf(name));
    }
    length = static_cast<std::uint32_t>(longest);
    return Success;
}

Result Registry::EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                                std::string& name) {
    Handle handle;
    if (Result result = Look(key, handle); result != Success) return result;
    if (handle.inside && handle.node->values.empty()) {
        return inner_.EnumerateValue(handle.inside, index, room, name);
    }
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    const Names names = ValueNames(*handle.node, handle.inside);
    if (index >= names.size()) return NoMoreItems;
    if (LengthOf(names[index]) >= room) return MoreData;
    name = names[index];
    return Success;
}

Result Registry::Close(Key key) {
    if (IsRoot(key)) return Success;
    const auto found = handles_.find(key);
    if (found == handles_.end()) return InvalidHandle;
    if (found->second.inside) inner_.Close(found->second.inside);
    handles_.erase(found);
    return Success;
}

// Up to the first NUL, and with what the ANSI code page makes of each character.
std::string Registry::AsStored(std::string_view text) const {
    text = text.substr(0, text.find('\0'));
    const bool isAscii = std::all_of(text.begin(), text.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return isAscii ? std::string(text) : locale_.FromAnsi(locale_.ToAnsi(text));
}

// Names in any case are one; the folded ones lie in the order in which they are enumerated.
std::string Registry::Folded(std::string_view name) const {
    std::string folded = runtime::ToUpper(name);
    constexpr std::pair<std::string_view, std::string_view> Pairs[] = {
        {"š", "Š"}, {"œ", "Œ"}, {"ž", "Ž"}, {"ÿ", "Ÿ"}};
    for (const auto& [small, capital] : Pairs) {
        for (auto at = folded.find(small); at != std::string::npos; at = folded.find(small, at)) {
            folded.replace(at, small.size(), capital);
        }
    }
    return locale_.ToAnsi(folded);
}

std::size_t Registry::LengthOf(std::string_view name) const {
    return locale_.ToAnsi(name).size();
}

Registry::Names Registry::NamesOf(std::string_view path) const {
    const std::string stored = AsStored(path);
    Names names;
    for (std::size_t at = 0; at < stored.size();) {
        const std::size_t end = std::min(stored.find('\\', at), stored.size());
        if (end > at) names.push_back(stored.substr(at, end - at));
        at = end + 1;
    }
    return names;
}

Registry::Names Registry::PathOf(const RegistryNode& node) {
    Names names;
    for (const RegistryNode* at = &node; at->parent; at = at->parent) names.push_back(at->name);
    std::reverse(names.begin(), names.end());
    return names;
}

Registry::NodeRef Registry::NewNode(RegistryNode& parent, const std::string& name) const {
    auto node = std::make_shared<RegistryNode>();
    node->name = name;
    node->root = parent.root;
    node->depth = parent.depth + 1;
    node->parent = &parent;
    return node;
}

Registry::NodeRef Registry::Child(RegistryNode& parent, const std::string& name) const {
    NodeRef& child = parent.children[Folded(name)];
    if (!child) child = NewNode(parent, name);
    return child;
}

Result Registry::Rights(const RegistryNode& node, std::uint32_t access) {
    for (const RegistryNode* at = &node; at; at = at->parent) {
        if (!at->isInside) continue;
        const Result result = inner_.Ask(at->root, PathOf(*at), access);
        if (result != FileNotFound) return result;
    }
    return FileNotFound;
}

bool Registry::IsInside(const RegistryNode& parent, const std::string& name) {
    Names names = PathOf(parent);
    names.push_back(name);
    const Result result = inner_.Ask(parent.root, names, InnerRegistry::MaximumAllowed);
    return result == Success || result == AccessDenied;
}

Result Registry::Descend(NodeRef& node, Names& names) const {
    auto next = names.begin();
    for (; next != names.end(); ++next) {
        const auto child = node->children.find(Folded(*next));
        if (child == node->children.end()) break;
        if (child->second->deleted) return FileNotFound;
        node = child->second;
    }
    names.erase(names.begin(), next);
    return names.empty() || node->readsThrough ? Success : FileNotFound;
}

Result Registry::OpenBelow(const NodeRef& from, const Names& names, std::uint32_t access,
                           Handle& opened) {
    NodeRef node = from;
    Names rest = names;
    if (Result result = Descend(node, rest); result != Success) return result;
    Key inside = 0;
    if (node->readsThrough) {
        Names all = PathOf(*node);
        all.insert(all.end(), rest.begin(), rest.end());
        if (Result result = inner_.Open(node->root, all, access, inside); result != Success) {
            return result;
        }
    } else if (Result result = Rights(*node, access); result != Success) {
        return result;
    }
    for (const std::string& name : rest) node = Child(*node, name);
    opened = {std::move(node), access, inside};
    return Success;
}

// Levels that were made before one fails stay.
Result Registry::MakePath(NodeRef& node, const Names& names, std::uint32_t access) {
    for (const std::string& name : names) {
        const auto known = node->children.find(Folded(name));
        NodeRef gone;
        if (known != node->children.end()) {
            if (!known->second->deleted) {
                node = known->second;
                continue;
            }
            gone = known->second;
        } else if (node->readsThrough && IsInside(*node, name)) {
            node = Child(*node, name);
            continue;
        }
        if (LengthOf(name) > LongestKeyName || node->depth >= DeepestKey) return InvalidParameter;
        if (Rights(*node, MayCreateSubKey) != Success) return AccessDenied;
        if (Rights(gone ? *gone : *node, access) != Success) return AccessDenied;
        NodeRef made = NewNode(*node, name);
        made->readsThrough = false;
        made->isInside = gone != nullptr;
        // They were deleted before the key could be, and stay so.
        if (gone) made->children = std::move(gone->children);
        for (auto& [folded, child] : made->children) child->parent = made.get();
        node->children.insert_or_assign(Folded(name), made);
        node = made;
    }
    return Success;
}

Result Registry::Look(Key key, Handle& found) const {
    if (IsRoot(key)) {
        found = {roots_[key - ClassesRoot], 0, key};
        return Success;
    }
    const auto handle = handles_.find(key);
    if (handle == handles_.end()) return InvalidHandle;
    found = handle->second;
    return found.node->deleted ? KeyDeleted : Success;
}

Result Registry::Use(Key key, std::uint32_t right, Handle& found) {
    if (Result result = Look(key, found); result != Success) return result;
    if (IsRoot(key)) return inner_.Ask(key, {}, right);
    return (found.access & right) == right ? Success : AccessDenied;
}

Registry::Key Registry::NewHandle(Handle handle) {
    const Key key = nextHandle_;
    nextHandle_ += HandleStep;
    handles_.emplace(key, std::move(handle));
    return key;
}

bool Registry::ShowsInnerKeys(const RegistryNode& node) {
    return std::all_of(node.children.begin(), node.children.end(), [](const auto& entry) {
        return entry.second->readsThrough && !entry.second->deleted;
    });
}

std::vector<std::optional<std::string>> Registry::KeyNames(const RegistryNode& node, Key inside) {
    // By its folded name; one that is not told stands behind the one before it.
    std::vector<std::pair<std::string, std::optional<std::string>>> entries;
    if (node.readsThrough) {
        for (std::optional<std::string>& name : inner_.KeyNames(inside)) {
            std::string folded = name ? Folded(*name) : entries.empty() ? "" : entries.back().first;
            entries.emplace_back(std::move(folded), std::move(name));
        }
    }
    for (const auto& [name, child] : node.children) {
        const std::string& folded = name;
        if (child->readsThrough && !child->deleted) continue;
        if (child->isInside) {
            const bool isTold = folded.size() < EnumerationRoom;
            const auto hidden =
                std::find_if(entries.rbegin(), entries.rend(), [&](const auto& entry) {
                    return isTold ? entry.second && entry.first == folded
                                  : !entry.second && entry.first < folded;
                });
            if (hidden != entries.rend()) entries.erase(std::next(hidden).base());
        }
        if (!child->deleted) entries.emplace_back(folded, child->name);
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::optional<std::string>> names;
    for (auto& entry : entries) names.push_back(std::move(entry.second));
    return names;
}

Registry::Names Registry::ValueNames(const RegistryNode& node, Key inside) {
    std::map<std::string, std::string> names;
    if (node.readsThrough) {
        for (const std::string& name : inner_.ValueNames(inside)) names[Folded(name)] = name;
    }
    for (const auto& [folded, pending] : node.values) {
        if (!pending.value) {
            names.erase(folded);
        } else if (pending.renewed) {
            names[folded] = pending.name;
        } else {
            names.emplace(folded, pending.name);
        }
    }
    Names list;
    for (auto& [folded, name] : names) list.push_back(name);
    return list;
}

bool Registry::HasChildren(const RegistryNode& node) {
    Key inside = 0;
    if (node.readsThrough &&
        inner_.Open(node.root, PathOf(node), MayEnumerateSubKeys, inside) != Success) {
        return true;
    }
    const bool has = !KeyNames(node, inside).empty();
    if (inside) inner_.Close(inside);
    return has;
}

bool Registry::HasValue(const RegistryNode& node, const std::string& name) {
    const auto found = node.values.find(Folded(name));
    if (found != node.values.end()) return found->second.value.has_value();
    if (!node.readsThrough) return false;
    Key inside = 0;
    if (inner_.Open(node.root, PathOf(node), MayQueryValue, inside) != Success) return true;
    std::uint32_t type = None;
    std::uint32_t size = 0;
    const Result result = inner_.Query(inside, name, type, nullptr, size);
    inner_.Close(inside);
    return result != FileNotFound;
}

std::vector<Change> Registry::Changes(Telling telling) {
    std::vector<Change> changes;
    for (const NodeRef& root : roots_) AddChanges(*root, telling, changes);
    return changes;
}

void Registry::AddChanges(const RegistryNode& node, Telling telling, std::vector<Change>& changes) {
    std::string path;
    for (const std::string& name : PathOf(node)) path += (path.empty() ? "" : "\\") + name;
    if (!node.isInside) changes.push_back({Change::Kind::KeyCreated, node.root, path});
    if (node.deleted) changes.push_back({Change::Kind::KeyDeleted, node.root, path});
    AddValueChanges(node, path, telling, changes);
    for (const auto& [folded, child] : node.children) AddChanges(*child, telling, changes);
}

void Registry::AddValueChanges(const RegistryNode& node, const std::string& path, Telling telling,
                               std::vector<Change>& changes) {
    const bool isRenewed = node.isInside && (node.deleted || !node.readsThrough);
    if (node.values.empty() && !isRenewed) return;
    Key inside = 0;
    if (node.isInside) inner_.Open(node.root, PathOf(node), MayQueryValue, inside);
    std::map<std::string, std::string> names;
    if (isRenewed && inside) {
        for (const std::string& name : inner_.ValueNames(inside)) names[Folded(name)] = name;
    }
    for (const auto& [folded, pending] : node.values) names[folded] = pending.name;
    for (const auto& [folded, name] : names) {
        const auto pending = node.values.find(folded);
        Change change{Change::Kind::ValueDeleted, node.root, path, name};
        if (inside) change.before = inner_.Value(inside, name);
        if (pending != node.values.end()) change.after = pending->second.value;
        const bool isWritten = change.after && telling == Telling::Writes;
        if (change.before == change.after && !isWritten) continue;
        if (change.after) change.kind = Change::Kind::ValueWritten;
        changes.push_back(std::move(change));
    }
    if (inside) inner_.Close(inside);
}

}  // namespace platform::dryrun
