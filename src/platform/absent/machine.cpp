#include "platform/absent/machine.h"

namespace platform::absent {

Machine::Machine(const Present& present)
    : services{
          .forms = forms_,
          .registry = present.registry,
          .settingsStore = present.settingsStore,
          .files = files_,
          .folders = folders_,
          .processes = processes_,
          .shell = shell_,
          .session = session_,
          .autostart = autostart_,
          .operatingSystem = present.operatingSystem,
          .systemFacts = present.systemFacts,
          .systemInformation = systemInformation_,
          .memory = present.memory,
          .internetCache = internetCache_,
          .otherWindows = otherWindows_,
          .display = display_,
          .keyboard = keyboard_,
          .clock = clock_,
          .systemClock = systemClock_,
          .network = network_,
          .workstation = workstation_,
          .socket = socket_,
          .locale = present.locale,
          .clipboard = clipboard_,
          .beeper = beeper_,
          .browser = browser_,
          .messages = messages_,
          .menus = menus_,
          .toolTips = toolTips_,
          .tray = tray_,
          .program = program_,
      } {}

}  // namespace platform::absent
