#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/simulated/machine.h"
#include "toolkit/form.h"

namespace sweep_test {

// All that can be seen of a machine and of a form on it, by name: registry, settings store, disk,
// what was started, asked for and told, each control of the form. Names begin with the kind:
// "registry HKLM\key|value", "setting title|section|key", "disk path", "control name",
// "message title: text", and so on.
using Snapshot = std::map<std::string, std::string>;

Snapshot Look(const platform::simulated::Machine& machine, const toolkit::Form* form);

// The names whose contents differ; one that is missing differs from any other.
std::set<std::string> Differing(const Snapshot& one, const Snapshot& other);

// What is told of a name that is not there.
inline const std::string Missing = "missing";

const std::string& At(const Snapshot& snapshot, const std::string& name);

}  // namespace sweep_test
