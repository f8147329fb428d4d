#include "platform/simulated/registry.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "platform/simulated/faults.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/registrynode.h"
#include "platform/simulated/wording.h"
#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

using Result = Registry::Result;

constexpr const char* RootNames[] = {"HKCR", "HKCU", "HKLM"};

// "-> 0" and what came out.
std::string ResultText(Result result, const std::string& out) {
    std::string text = " -> " + std::to_string(result);
    return result == Registry::Success ? text + out : text;
}

// In the order of the names. The NUL takes a place in the room.
template <typename Map>
Result NameAt(const Map& entries, std::uint32_t index, std::size_t room, std::string& name) {
    if (index >= entries.size()) return Registry::NoMoreItems;
    const std::string& found = std::next(entries.begin(), index)->first;
    if (found.size() >= room) return Registry::MoreData;
    name = runtime::FromWestern(found);
    return Registry::Success;
}

bool BeginsWithBackslash(std::string_view path) {
    return path.starts_with('\\');
}

}  // namespace

Registry::Registry(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {
    for (std::size_t i = 0; i < roots_.size(); ++i) {
        roots_[i] = std::make_shared<RegistryNode>();
        roots_[i]->path = RootNames[i];
    }
}

Registry::~Registry() = default;

// Handles are numbered in the order of their making.
std::string Registry::KeyText(Key key) {
    if (IsRoot(key)) return RootNames[key - ClassesRoot];
    return key % HandleStep == 0 ? "#" + std::to_string(key / HandleStep) : Hex(key);
}

Result Registry::Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) {
    auto fault = Fault("RegOpenKeyExA", parent, path, "\\");
    Result result = fault ? *fault : OpenKey(parent, path, access, opened);
    journal_.Note([&] {
        return "RegOpenKeyExA " + KeyText(parent) + " " + Quoted(path) + " " + Hex(access) +
               ResultText(result, " " + KeyText(opened));
    });
    return result;
}

Result Registry::Create(Key parent, std::string_view name, std::uint32_t access, Key& created) {
    auto fault = Fault("RegCreateKeyExA", parent, name, "\\");
    Result result = fault ? *fault : CreateKey(parent, name, access, created);
    journal_.Note([&] {
        return "RegCreateKeyExA " + KeyText(parent) + " " + Quoted(name) + " " + Hex(access) +
               ResultText(result, " " + KeyText(created));
    });
    return result;
}

Result Registry::Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& size) {
    auto fault = Fault("RegQueryValueExA", key, valueName, "|");
    Result result = fault ? *fault : QueryValue(key, valueName, type, data, size);
    journal_.Note([&] {
        std::string line = "RegQueryValueExA " + KeyText(key) + " " + Quoted(valueName) + " -> " +
                           std::to_string(result);
        if (result == Success || result == MoreData) {
            line += " type " + std::to_string(type) + " size " + std::to_string(size);
        }
        if (result == Success && data) line += " data " + DataText(type, data, size);
        return line;
    });
    return result;
}

Result Registry::Set(Key key, std::string_view valueName, std::uint32_t type,
                     const std::uint8_t* data, std::uint32_t size) {
    if (!data) size = 0;
    auto fault = Fault("RegSetValueExA", key, valueName, "|");
    Result result = fault ? *fault : SetValue(key, valueName, {type, {data, data + size}});
    journal_.Note([&] {
        return "RegSetValueExA " + KeyText(key) + " " + Quoted(valueName) + " type " +
               std::to_string(type) + " size " + std::to_string(size) + " data " +
               DataText(type, data, size) + ResultText(result, "");
    });
    return result;
}

Result Registry::RemoveValue(Key key, std::string_view valueName) {
    auto fault = Fault("RegDeleteValueA", key, valueName, "|");
    Result result = fault ? *fault : EraseValue(key, valueName);
    journal_.Note([&] {
        return "RegDeleteValueA " + KeyText(key) + " " + Quoted(valueName) + ResultText(result, "");
    });
    return result;
}

Result Registry::RemoveKey(Key parent, std::string_view path) {
    auto fault = Fault("RegDeleteKeyA", parent, path, "\\");
    Result result = fault ? *fault : DeleteKey(parent, path);
    journal_.Note([&] {
        return "RegDeleteKeyA " + KeyText(parent) + " " + Quoted(path) + ResultText(result, "");
    });
    return result;
}

Result Registry::EnumerateKey(Key key, std::uint32_t index, std::string& name) {
    auto fault = Fault("RegEnumKeyA", key, "", "");
    Result result = fault ? *fault : KeyAt(key, index, name);
    journal_.Note([&] {
        return "RegEnumKeyA " + KeyText(key) + " " + std::to_string(index) +
               ResultText(result, " " + Quoted(name));
    });
    return result;
}

Result Registry::LongestValueName(Key key, std::uint32_t& length) {
    auto fault = Fault("RegQueryInfoKeyA", key, "", "");
    Result result = fault ? *fault : LongestName(key, length);
    journal_.Note([&] {
        return "RegQueryInfoKeyA " + KeyText(key) +
               ResultText(result, " " + std::to_string(length));
    });
    return result;
}

Result Registry::EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                                std::string& name) {
    auto fault = Fault("RegEnumValueA", key, "", "");
    Result result = fault ? *fault : ValueAt(key, index, room, name);
    journal_.Note([&] {
        return "RegEnumValueA " + KeyText(key) + " " + std::to_string(index) +
               ResultText(result, " " + Quoted(name));
    });
    return result;
}

Result Registry::Close(Key key) {
    auto fault = Fault("RegCloseKey", key, "", "");
    Result result = Success;
    if (fault) {
        result = *fault;
    } else if (!IsRoot(key) && handles_.erase(key) == 0) {
        result = InvalidHandle;
    }
    journal_.Note([&] { return "RegCloseKey " + KeyText(key) + ResultText(result, ""); });
    return result;
}

Result Registry::OpenKey(Key parent, std::string_view path, std::uint32_t access, Key& opened) {
    Handle handle;
    if (Result result = Look(parent, handle); result != Success) return result;
    AnsiName name(path);
    if (BeginsWithBackslash(name.Bytes())) return BadPathName;
    NodeRef node = FindBelow(handle.node, name.Bytes());
    if (!node) return FileNotFound;
    if ((Denied(node->path) & access) != 0) return AccessDenied;
    opened = NewHandle(std::move(node), access);
    return Success;
}

Result Registry::CreateKey(Key parent, std::string_view path, std::uint32_t access, Key& created) {
    Handle handle;
    if (Result result = Look(parent, handle); result != Success) return result;
    AnsiName name(path);
    if (BeginsWithBackslash(name.Bytes())) return BadPathName;
    NodeRef node = handle.node;
    if (Result result = MakePath(node, name.Bytes(), access); result != Success) return result;
    if ((Denied(node->path) & access) != 0) return AccessDenied;
    created = NewHandle(std::move(node), access);
    return Success;
}

// Levels that were made before one fails stay. Whether a key may get children is asked of the key,
// not of the handle, which Windows does here and for deletion alone.
Result Registry::MakePath(NodeRef& node, std::string_view path, std::uint32_t access) {
    for (auto name = TakeName(path); !name.empty(); name = TakeName(path)) {
        auto child = node->children.find(name);
        if (child != node->children.end()) {
            node = child->second;
            continue;
        }
        if (name.size() > LongestKeyName || node->depth >= DeepestKey) return InvalidParameter;
        if ((Denied(node->path) & MayCreateSubKey) != 0) return AccessDenied;
        if ((Denied(node->path + "\\" + std::string(name)) & access) != 0) return AccessDenied;
        node = node->AddChild(name);
    }
    return Success;
}

Result Registry::QueryValue(Key key, std::string_view valueName, std::uint32_t& type,
                            std::uint8_t* data, std::uint32_t& size) const {
    Handle handle;
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    auto found = handle.node->values.find(AnsiName(valueName).Bytes());
    if (found == handle.node->values.end()) return FileNotFound;
    const StoredValue& value = found->second;
    const auto needed = static_cast<std::uint32_t>(value.bytes.size());
    const std::uint32_t room = size;
    type = value.type;
    size = needed;
    if (!data) return Success;
    if (room < needed) {
        // What the buffer then holds is nobody's to rely on.
        std::memset(data, 0xCC, room);
        return MoreData;
    }
    if (needed == 0) return Success;
    std::memcpy(data, value.bytes.data(), needed);
    // A text stored without its end gets one where there is room, and its size does not tell.
    if (IsTextType(type) && room > needed && data[needed - 1] != 0) data[needed] = 0;
    return Success;
}

Result Registry::SetValue(Key key, std::string_view valueName, StoredValue value) {
    Handle handle;
    if (Result result = Use(key, MaySetValue, handle); result != Success) return result;
    AnsiName name(valueName);
    if (name.Bytes().size() > ValueNameLimit) return InvalidParameter;
    auto& values = handle.node->values;
    auto found = values.find(name.Bytes());
    if (found == values.end()) {
        values.emplace(name.Bytes(), std::move(value));
    } else {
        found->second = std::move(value);
    }
    return Success;
}

Result Registry::EraseValue(Key key, std::string_view valueName) {
    Handle handle;
    if (Result result = Use(key, MaySetValue, handle); result != Success) return result;
    auto found = handle.node->values.find(AnsiName(valueName).Bytes());
    if (found == handle.node->values.end()) return FileNotFound;
    handle.node->values.erase(found);
    return Success;
}

Result Registry::DeleteKey(Key parent, std::string_view path) {
    Handle handle;
    if (Result result = Look(parent, handle); result != Success) return result;
    AnsiName name(path);
    if (BeginsWithBackslash(name.Bytes())) return BadPathName;
    NodeRef node = FindBelow(handle.node, name.Bytes());
    if (!node) return FileNotFound;
    if (node->depth == 0 || !node->children.empty() || Denied(node->path) != 0) {
        return AccessDenied;
    }
    node->Remove();
    return Success;
}

Result Registry::KeyAt(Key key, std::uint32_t index, std::string& name) const {
    Handle handle;
    if (Result result = Use(key, MayEnumerateSubKeys, handle); result != Success) return result;
    return NameAt(handle.node->children, index, EnumerationRoom, name);
}

Result Registry::ValueAt(Key key, std::uint32_t index, std::uint32_t room,
                         std::string& name) const {
    Handle handle;
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    return NameAt(handle.node->values, index, room, name);
}

Result Registry::LongestName(Key key, std::uint32_t& length) const {
    Handle handle;
    if (Result result = Use(key, MayQueryValue, handle); result != Success) return result;
    std::size_t longest = 0;
    for (const auto& entry : handle.node->values) longest = std::max(longest, entry.first.size());
    length = static_cast<std::uint32_t>(longest);
    return Success;
}

Result Registry::Look(Key key, Handle& found) const {
    if (IsRoot(key)) {
        const NodeRef& root = Root(key);
        found = {root, ~Denied(root->path)};
        return Success;
    }
    auto handle = handles_.find(key);
    if (handle == handles_.end()) return InvalidHandle;
    found = handle->second;
    return found.node->deleted ? KeyDeleted : Success;
}

Result Registry::Use(Key key, std::uint32_t right, Handle& found) const {
    if (Result result = Look(key, found); result != Success) return result;
    return (found.access & right) == right ? Success : AccessDenied;
}

std::optional<Result> Registry::Fault(std::string_view call, Key key, std::string_view path,
                                      const char* separator) const {
    if (faults_.Idle()) return std::nullopt;
    Handle handle;
    std::string subject = Look(key, handle) == InvalidHandle ? "" : handle.node->path;
    if (!path.empty()) subject = runtime::FromWestern(subject) + separator + std::string(path);
    return faults_.Check(call, subject);
}

Registry::Key Registry::NewHandle(NodeRef node, std::uint32_t access) {
    const Key handle = nextHandle_;
    nextHandle_ += HandleStep;
    handles_.emplace(handle, Handle{std::move(node), access});
    return handle;
}

std::uint32_t Registry::Denied(std::string_view fullPath) const {
    std::uint32_t rights = 0;
    for (const Denial& denial : denials_) {
        std::string_view start = fullPath.substr(0, denial.path.size());
        bool below = fullPath.size() == start.size() || fullPath[start.size()] == '\\';
        if (below && SameName(start, denial.path)) rights |= denial.rights;
    }
    return rights;
}

}  // namespace platform::simulated
