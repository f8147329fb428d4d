#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/dryrun/machine.h"
#include "platform/simulated/machine.h"

namespace dryrun_test {

using platform::Registry;
using platform::dryrun::Change;
using platform::simulated::StoredValue;

inline constexpr Registry::Key HKCR = Registry::ClassesRoot;
inline constexpr Registry::Key HKCU = Registry::CurrentUser;
inline constexpr Registry::Key HKLM = Registry::LocalMachine;

// A dry run over a simulated machine.
struct OverMachine {
    platform::simulated::Machine inner;
    platform::dryrun::Machine dry{inner.services};
    platform::dryrun::Registry& registry = dry.registry;
};

// Does what the list says behind the calls of a simulated registry.
inline void CarryOut(const std::vector<Change>& changes, platform::simulated::Registry& registry) {
    for (const Change& change : changes) {
        if (change.kind == Change::Kind::KeyCreated) registry.MakeKey(change.root, change.path);
        if (change.kind != Change::Kind::ValueWritten) continue;
        registry.Put(change.root, change.path, change.valueName,
                     {change.after->type, change.after->bytes});
    }
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        if (change->kind == Change::Kind::ValueDeleted) {
            registry.Erase(change->root, change->path, change->valueName);
        }
        if (change->kind == Change::Kind::KeyDeleted) {
            registry.EraseKey(change->root, change->path);
        }
    }
}

}  // namespace dryrun_test
