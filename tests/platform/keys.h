#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/machine.h"

namespace platform_test {

using platform::Registry;
using platform::simulated::StoredValue;

inline constexpr Registry::Key HKCR = Registry::ClassesRoot;
inline constexpr Registry::Key HKCU = Registry::CurrentUser;
inline constexpr Registry::Key HKLM = Registry::LocalMachine;

// A machine with the calls of its registry shortened for tests that look at one thing.
struct Keys {
    platform::simulated::Machine machine;
    platform::simulated::Registry& registry = machine.registry;

    Registry::Key Opened(Registry::Key parent, std::string_view path,
                         std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        return registry.Open(parent, path, access, key) == Registry::Success ? key : 0;
    }

    Registry::Result OpenResult(Registry::Key parent, std::string_view path,
                                std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        return registry.Open(parent, path, access, key);
    }

    Registry::Result CreateResult(Registry::Key parent, std::string_view name,
                                  std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        return registry.Create(parent, name, access, key);
    }

    Registry::Result SetText(Registry::Key key, std::string_view name, std::string_view bytes,
                             std::uint32_t type = Registry::String) {
        return registry.Set(key, name, type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                            static_cast<std::uint32_t>(bytes.size()));
    }

    // The result of asking for type and size only.
    Registry::Result SizeResult(Registry::Key key, std::string_view name) {
        std::uint32_t type = 0;
        std::uint32_t size = 0;
        return registry.Query(key, name, type, nullptr, size);
    }
};

}  // namespace platform_test
