#pragma once

#include "platform/machine.h"

namespace bench {

// The same machine with another registry and locale.
inline platform::Machine WithRegistry(const platform::Machine& machine,
                                      platform::Registry& registry, platform::Locale& locale) {
    return {
        .forms = machine.forms,
        .registry = registry,
        .settings = machine.settings,
        .files = machine.files,
        .folders = machine.folders,
        .processes = machine.processes,
        .shell = machine.shell,
        .session = machine.session,
        .autostart = machine.autostart,
        .system = machine.system,
        .facts = machine.facts,
        .information = machine.information,
        .memory = machine.memory,
        .internetCache = machine.internetCache,
        .windows = machine.windows,
        .display = machine.display,
        .keyboard = machine.keyboard,
        .clock = machine.clock,
        .systemClock = machine.systemClock,
        .network = machine.network,
        .workstation = machine.workstation,
        .socket = machine.socket,
        .locale = locale,
        .clipboard = machine.clipboard,
        .beeper = machine.beeper,
        .browser = machine.browser,
        .messages = machine.messages,
        .menus = machine.menus,
        .tray = machine.tray,
        .program = machine.program,
    };
}

}  // namespace bench
