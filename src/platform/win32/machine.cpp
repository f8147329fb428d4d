#include "platform/win32/machine.h"

#include "platform/win32/formhandles.h"

namespace platform::win32 {

Machine::Machine(FormHandles& forms)
    : display_(forms),
      shell_(forms, messages_),
      services{
          .forms = forms,
          .registry = registry_,
          .settingsStore = settingsStore_,
          .files = files_,
          .folders = folders_,
          .processes = processes_,
          .shell = shell_,
          .session = session_,
          .autostart = autostart_,
          .operatingSystem = operatingSystem_,
          .systemFacts = systemFacts_,
          .systemInformation = systemInformation_,
          .memory = memory_,
          .internetCache = internetCache_,
          .otherWindows = otherWindows_,
          .display = display_,
          .keyboard = keyboard_,
          .clock = clock_,
          .systemClock = systemClock_,
          .network = network_,
          .workstation = workstation_,
          .socket = socket_,
          .locale = locale_,
          .clipboard = clipboard_,
          .beeper = beeper_,
          .browser = browser_,
          .messages = messages_,
          .menus = menus_,
          .toolTips = toolTips_,
          .tray = tray_,
          .program = program_,
      } {}

}  // namespace platform::win32
