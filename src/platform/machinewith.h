#pragma once

#include "platform/machine.h"

namespace platform {

// What stands in for a machine's own; nullptr leaves it. Of the services those that somebody
// replaces are here.
struct Replacements {
    toolkit::FormHost* forms = nullptr;
    Registry* registry = nullptr;
    Folders* folders = nullptr;
    Shell* shell = nullptr;
    Display* display = nullptr;
    Locale* locale = nullptr;
};

template <typename Service>
Service& Or(Service* other, Service& own) {
    return other ? *other : own;
}

// The machine with some of its services replaced.
inline Machine With(const Machine& machine, const Replacements& other) {
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

}  // namespace platform
