#include "platform/win32/machine.h"

namespace platform::win32 {

Machine::Machine(toolkit::FormHost& forms)
    : services{
          .forms = forms,
          .registry = registry_,
          .settings = settings_,
          .files = files_,
          .processes = processes_,
          .session = session_,
          .autostart = autostart_,
          .system = system_,
          .facts = facts_,
          .memory = memory_,
          .clock = clock_,
          .locale = locale_,
          .messages = messages_,
          .tray = tray_,
          .program = program_,
      } {}

}  // namespace platform::win32
