#include "platform/dryrun/innerregistry.h"

namespace platform::dryrun {
namespace {

using Service = platform::Registry;

// The system has no room for longer paths, while each name alone may have as many characters.
constexpr std::size_t LongestPath = 200;

}  // namespace

InnerRegistry::Result InnerRegistry::Open(Key root, const Names& names, std::uint32_t access,
                                          Key& opened) {
    Key from = root;
    std::string path;
    const auto goDown = [&](std::uint32_t wanted, Key& to) {
        const Result result = inner_.Open(from, path, wanted, to);
        if (from != root) inner_.Close(from);
        path.clear();
        return result;
    };
    for (const std::string& name : names) {
        if (!path.empty() && path.size() + name.size() > LongestPath) {
            Key between = 0;
            const Result result = goDown(MaximumAllowed, between);
            if (result != Service::Success) return result;
            from = between;
        }
        if (!path.empty()) path += '\\';
        path += name;
    }
    return goDown(access, opened);
}

InnerRegistry::Result InnerRegistry::Ask(Key root, const Names& names, std::uint32_t access) {
    Key key = 0;
    const Result result = Open(root, names, access, key);
    if (result == Service::Success) inner_.Close(key);
    return result;
}

InnerRegistry::Result InnerRegistry::Query(Key key, std::string_view valueName, std::uint32_t& type,
                                           std::uint8_t* data, std::uint32_t& size) {
    return inner_.Query(key, valueName, type, data, size);
}

InnerRegistry::Result InnerRegistry::EnumerateKey(Key key, std::uint32_t index, std::string& name) {
    return inner_.EnumerateKey(key, index, name);
}

InnerRegistry::Result InnerRegistry::LongestValueName(Key key, std::uint32_t& length) {
    return inner_.LongestValueName(key, length);
}

InnerRegistry::Result InnerRegistry::EnumerateValue(Key key, std::uint32_t index,
                                                    std::uint32_t room, std::string& name) {
    return inner_.EnumerateValue(key, index, room, name);
}

void InnerRegistry::Close(Key key) {
    inner_.Close(key);
}

std::vector<std::optional<std::string>> InnerRegistry::KeyNames(Key key) {
    std::vector<std::optional<std::string>> names;
    for (std::uint32_t index = 0;; ++index) {
        std::string name;
        const Result result = inner_.EnumerateKey(key, index, name);
        if (result == Service::Success) {
            names.emplace_back(std::move(name));
        } else if (result == Service::MoreData) {
            names.emplace_back(std::nullopt);
        } else {
            return names;
        }
    }
}

InnerRegistry::Names InnerRegistry::ValueNames(Key key) {
    Names names;
    std::uint32_t longest = 0;
    if (inner_.LongestValueName(key, longest) != Service::Success) return names;
    std::string name;
    for (std::uint32_t index = 0;
         inner_.EnumerateValue(key, index, longest + 1, name) == Service::Success; ++index) {
        names.push_back(name);
    }
    return names;
}

std::optional<RegistryValue> InnerRegistry::Value(Key key, std::string_view valueName) {
    RegistryValue value;
    std::uint32_t size = 0;
    if (inner_.Query(key, valueName, value.type, nullptr, size) != Service::Success) {
        return std::nullopt;
    }
    for (;;) {
        // Never without a buffer, which would ask for the size alone.
        value.bytes.assign(std::size_t{size} + 1, 0);
        const Result result = inner_.Query(key, valueName, value.type, value.bytes.data(), size);
        // Grown since.
        if (result == Service::MoreData) continue;
        if (result != Service::Success) return std::nullopt;
        value.bytes.resize(size);
        return value;
    }
}

}  // namespace platform::dryrun
