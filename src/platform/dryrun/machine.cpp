#include "platform/dryrun/machine.h"

#include <utility>

namespace platform::dryrun {

Machine::Machine(const platform::Machine& inner, Messages::Answer answer)
    : registry(inner.registry, inner.locale),
      folders(inner.folders),
      files(inner.files, inner.folders),
      settingsStore(inner.settingsStore),
      autostart(inner.autostart),
      messages(std::move(answer)),
      shell(inner.shell),
      internetCache(inner.internetCache),
      otherWindows(inner.otherWindows),
      memory(inner.memory),
      toolTips(inner.toolTips),
      services{
          .forms = inner.forms,
          .registry = registry,
          .settingsStore = settingsStore,
          .files = files,
          .folders = folders,
          .processes = processes,
          .shell = shell,
          .session = session,
          .autostart = autostart,
          .operatingSystem = inner.operatingSystem,
          .systemFacts = inner.systemFacts,
          .systemInformation = inner.systemInformation,
          .memory = memory,
          .internetCache = internetCache,
          .otherWindows = otherWindows,
          .display = inner.display,
          .keyboard = inner.keyboard,
          .clock = inner.clock,
          .systemClock = systemClock,
          .network = inner.network,
          .workstation = inner.workstation,
          .socket = socket,
          .locale = inner.locale,
          .clipboard = clipboard,
          .beeper = beeper,
          .browser = browser,
          .messages = messages,
          .menus = menus,
          .toolTips = toolTips,
          .tray = tray,
          .program = inner.program,
      } {}

}  // namespace platform::dryrun
