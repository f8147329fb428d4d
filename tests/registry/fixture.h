#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/machine.h"
#include "registry/registry.h"

namespace registry_tests {

using platform::simulated::BareTextValue;
using platform::simulated::DwordValue;
using platform::simulated::StoredValue;
using platform::simulated::TextValue;
using registry::HKCR;
using registry::HKCU;
using registry::HKLM;
using Service = platform::Registry;

inline StoredValue Stored(std::uint32_t type, std::vector<std::uint8_t> bytes) {
    return {type, std::move(bytes)};
}

inline StoredValue Stored(std::uint32_t type, std::string_view bytes) {
    return {type, std::vector<std::uint8_t>(bytes.begin(), bytes.end())};
}

// A machine with the registry functions on top of it, and the key "Software\Test" under HKLM.
struct RegistryOnMachine {
    RegistryOnMachine() : registry(machine.registry, machine.locale) {
        machine.registry.MakeKey(Service::LocalMachine, Key);
    }

    void Put(std::string_view valueName, StoredValue value) {
        machine.registry.Put(Service::LocalMachine, Key, valueName, std::move(value));
    }
    std::string Read(std::string_view valueName) const {
        return registry.RegReadValue(HKLM, Key, valueName);
    }
    // The text that a value with this content gives.
    std::string ReadBack(StoredValue value) {
        Put("Value", std::move(value));
        return Read("Value");
    }
    auto Value(std::string_view valueName) const {
        return machine.registry.Value(Service::LocalMachine, Key, valueName);
    }

    static constexpr std::string_view Key = "Software\\Test";
    platform::simulated::Machine machine;
    registry::Registry registry;
};

}  // namespace registry_tests
