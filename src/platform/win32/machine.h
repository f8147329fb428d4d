#pragma once

#include "platform/machine.h"
#include "platform/win32/autostart.h"
#include "platform/win32/beeper.h"
#include "platform/win32/browser.h"
#include "platform/win32/clipboard.h"
#include "platform/win32/clock.h"
#include "platform/win32/display.h"
#include "platform/win32/files.h"
#include "platform/win32/folders.h"
#include "platform/win32/internetcache.h"
#include "platform/win32/keyboard.h"
#include "platform/win32/locale.h"
#include "platform/win32/memory.h"
#include "platform/win32/menus.h"
#include "platform/win32/messages.h"
#include "platform/win32/network.h"
#include "platform/win32/operatingsystem.h"
#include "platform/win32/otherwindows.h"
#include "platform/win32/processes.h"
#include "platform/win32/program.h"
#include "platform/win32/registry.h"
#include "platform/win32/session.h"
#include "platform/win32/settingsstore.h"
#include "platform/win32/shell.h"
#include "platform/win32/socket.h"
#include "platform/win32/systemclock.h"
#include "platform/win32/systemfacts.h"
#include "platform/win32/systeminformation.h"
#include "platform/win32/tooltips.h"
#include "platform/win32/tray.h"
#include "platform/win32/workstation.h"

namespace platform::win32 {

class FormHandles;

// The Windows on which the program runs.
class Machine {
  public:
    // `forms` makes the native windows and lives as long as the machine.
    explicit Machine(FormHandles& forms);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

  private:
    Registry registry_;
    SettingsStore settingsStore_;
    Files files_;
    Folders folders_;
    Processes processes_;
    Session session_;
    AutoStart autostart_;
    OperatingSystem operatingSystem_;
    SystemFacts systemFacts_;
    SystemInformation systemInformation_;
    Memory memory_;
    InternetCache internetCache_;
    OtherWindows otherWindows_;
    Display display_;
    Keyboard keyboard_;
    Locale locale_;
    Clipboard clipboard_;
    Beeper beeper_;
    Browser browser_;
    Messages messages_;
    Shell shell_;
    Menus menus_;
    ToolTips toolTips_;
    Clock clock_{messages_};
    SystemClock systemClock_;
    Network network_;
    Workstation workstation_;
    Socket socket_{messages_};
    Tray tray_{messages_};
    Program program_;

  public:
    // The machine as the program sees it.
    platform::Machine services;
};

}  // namespace platform::win32
