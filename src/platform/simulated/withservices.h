#pragma once

#include "platform/machine.h"

namespace platform::simulated {

// What stands in for a machine's own; nullptr leaves it.
struct Services {
    toolkit::FormHost* forms = nullptr;
    platform::Registry* registry = nullptr;
    platform::Folders* folders = nullptr;
    platform::Shell* shell = nullptr;
    platform::Display* display = nullptr;
    platform::Locale* locale = nullptr;
};

template <typename Service>
Service& Or(Service* other, Service& own) {
    return other ? *other : own;
}

inline platform::Machine With(const platform::Machine& machine, const Services& other) {
    return {
        .forms = Or(other.forms, machine.forms),
        .registry = Or(other.registry, machine.registry),
        .settingsStore = machine.settingsStore,
        .files = machine.files,
        .folders = Or(other.folders, machine.folders),
        .processes = machine.processes,
        .shell = Or(other.shell, machine.shell),
        .session = machine.session,
        .autostart = machine.autostart,
        .operatingSystem = machine.operatingSystem,
        .systemFacts = machine.systemFacts,
        .systemInformation = machine.systemInformation,
        .memory = machine.memory,
        .internetCache = machine.internetCache,
        .otherWindows = machine.otherWindows,
        .display = Or(other.display, machine.display),
        .keyboard = machine.keyboard,
        .clock = machine.clock,
        .systemClock = machine.systemClock,
        .network = machine.network,
        .workstation = machine.workstation,
        .socket = machine.socket,
        .locale = Or(other.locale, machine.locale),
        .clipboard = machine.clipboard,
        .beeper = machine.beeper,
        .browser = machine.browser,
        .messages = machine.messages,
        .menus = machine.menus,
        .toolTips = machine.toolTips,
        .tray = machine.tray,
        .program = machine.program,
    };
}

}  // namespace platform::simulated
