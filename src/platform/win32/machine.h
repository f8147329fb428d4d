#pragma once

#include "platform/machine.h"
#include "platform/win32/autostart.h"
#include "platform/win32/clock.h"
#include "platform/win32/files.h"
#include "platform/win32/locale.h"
#include "platform/win32/memory.h"
#include "platform/win32/messages.h"
#include "platform/win32/operatingsystem.h"
#include "platform/win32/processes.h"
#include "platform/win32/program.h"
#include "platform/win32/registry.h"
#include "platform/win32/session.h"
#include "platform/win32/settingsstore.h"
#include "platform/win32/systemfacts.h"
#include "platform/win32/tray.h"

namespace platform::win32 {

// The Windows on which the program runs.
class Machine {
  public:
    // `forms` makes the native windows and lives as long as the machine.
    explicit Machine(toolkit::FormHost& forms);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

  private:
    Registry registry_;
    SettingsStore settings_;
    Files files_;
    Processes processes_;
    Session session_;
    AutoStart autostart_;
    OperatingSystem system_;
    SystemFacts facts_;
    Memory memory_;
    Locale locale_;
    Messages messages_;
    Clock clock_{messages_};
    Tray tray_{messages_};
    Program program_;

  public:
    // The machine as the program sees it.
    platform::Machine services;
};

}  // namespace platform::win32
