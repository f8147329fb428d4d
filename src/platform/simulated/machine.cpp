#include "platform/simulated/machine.h"

namespace platform::simulated {

Machine::Machine()
    : forms(journal),
      registry(journal, faults),
      settings(journal, faults),
      files(journal, faults),
      processes(journal, faults),
      session(journal, faults),
      autostart(journal, faults),
      system(journal, faults),
      facts(journal, faults),
      memory(journal, faults),
      clock(journal, faults),
      messages(journal, faults),
      tray(journal, faults),
      program(journal),
      services{forms, registry, settings, files,  processes, session, autostart, system,
               facts, memory,   clock,    locale, messages,  tray,    program} {}

}  // namespace platform::simulated
