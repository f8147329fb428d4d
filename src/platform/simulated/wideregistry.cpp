#include "platform/simulated/wideregistry.h"

#include <string>

#include "platform/simulated/registry.h"
#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

using Result = WideRegistry::Result;

// Does the work in the key and closes it, which can no longer fail anything.
template <typename Work>
Result InKey(Registry& registry, WideRegistry::Root root, std::string_view path,
             std::uint32_t access, Work&& work) {
    Registry::Key key = 0;
    Result result = registry.Open(root, path, access, key);
    if (result != Registry::Success) return result;
    result = work(key);
    registry.Close(key);
    return result;
}

// A name ends at a NUL, so one with a NUL inside would be another one's.
bool HasNul(std::string_view text) {
    return text.find('\0') != std::string_view::npos;
}

std::vector<std::uint8_t> WideBytes(const std::vector<std::uint8_t>& western) {
    const std::string bytes(western.begin(), western.end());
    const std::string wide = runtime::ToUtf16(runtime::FromWestern(bytes));
    return {wide.begin(), wide.end()};
}

std::vector<std::uint8_t> WesternBytes(const std::vector<std::uint8_t>& wide) {
    std::vector<std::uint8_t> western;
    for (std::size_t i = 0; i + 1 < wide.size(); i += 2) {
        const char32_t unit = wide[i] | static_cast<char32_t>(wide[i + 1]) << 8;
        western.push_back(static_cast<std::uint8_t>(runtime::WesternByte(unit)));
    }
    return western;
}

}  // namespace

Result WideRegistry::Ask(Root root, std::string_view path) {
    if (HasNul(path)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MayQueryValue,
                 [](Registry::Key) { return Registry::Success; });
}

Result WideRegistry::KeyNames(Root root, std::string_view path, std::vector<std::string>& names) {
    if (HasNul(path)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MayEnumerateSubKeys, [&](Registry::Key key) {
        for (std::uint32_t index = 0;; ++index) {
            std::string name;
            const Result result = registry_.EnumerateKey(key, index, name);
            if (result == Registry::NoMoreItems) return Registry::Success;
            if (result != Registry::Success) return result;
            names.push_back(name);
        }
    });
}

Result WideRegistry::ValueNames(Root root, std::string_view path, std::vector<std::string>& names) {
    if (HasNul(path)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MayQueryValue, [&](Registry::Key key) {
        for (std::uint32_t index = 0;; ++index) {
            std::string name;
            const Result result =
                registry_.EnumerateValue(key, index, Registry::ValueNameLimit + 1, name);
            if (result == Registry::NoMoreItems) return Registry::Success;
            if (result != Registry::Success) return result;
            names.push_back(name);
        }
    });
}

Result WideRegistry::Read(Root root, std::string_view path, std::string_view name, Value& value) {
    if (HasNul(path) || HasNul(name)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MayQueryValue, [&](Registry::Key key) {
        Value found;
        std::uint32_t size = 0;
        Result result = registry_.Query(key, name, found.type, nullptr, size);
        if (result != Registry::Success) return result;
        // A query without a buffer is one for the size.
        found.bytes.resize(size + 1);
        result = registry_.Query(key, name, found.type, found.bytes.data(), size);
        if (result != Registry::Success) return result;
        found.bytes.resize(size);
        if (IsTextType(found.type)) found.bytes = WideBytes(found.bytes);
        value = found;
        return result;
    });
}

Result WideRegistry::Write(Root root, std::string_view path, std::string_view name,
                           const Value& value) {
    if (HasNul(path) || HasNul(name)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MaySetValue, [&](Registry::Key key) {
        const auto bytes = IsTextType(value.type) ? WesternBytes(value.bytes) : value.bytes;
        return registry_.Set(key, name, value.type, bytes.data(),
                             static_cast<std::uint32_t>(bytes.size()));
    });
}

Result WideRegistry::RemoveValue(Root root, std::string_view path, std::string_view name) {
    if (HasNul(path) || HasNul(name)) return Registry::InvalidParameter;
    return InKey(registry_, root, path, Registry::MaySetValue,
                 [&](Registry::Key key) { return registry_.RemoveValue(key, name); });
}

Result WideRegistry::Create(Root root, std::string_view path) {
    if (HasNul(path)) return Registry::InvalidParameter;
    Registry::Key key = 0;
    const Result result = registry_.Create(root, path, Registry::MayQueryValue, key);
    if (result == Registry::Success) registry_.Close(key);
    return result;
}

Result WideRegistry::RemoveKey(Root root, std::string_view path) {
    if (HasNul(path)) return Registry::InvalidParameter;
    return registry_.RemoveKey(root, path);
}

}  // namespace platform::simulated
