#pragma once

#include "platform/absent/services.h"
#include "platform/machine.h"

namespace platform::absent {

// What there must be, for both passes over the options to do their work.
struct Present {
    platform::Registry& registry;
    platform::SettingsStore& settingsStore;
    platform::OperatingSystem& operatingSystem;
    platform::SystemFacts& systemFacts;
    platform::Memory& memory;
    platform::Locale& locale;
};

// A machine that has nothing else. It costs nothing to make and needs no library of the system, so
// a program that shows nothing starts in a third of the time that all services would take.
class Machine {
  public:
    explicit Machine(const Present& present);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

  private:
    Forms forms_;
    Files files_;
    Folders folders_;
    Processes processes_;
    Shell shell_;
    Session session_;
    AutoStart autostart_;
    SystemInformation systemInformation_;
    InternetCache internetCache_;
    OtherWindows otherWindows_;
    Display display_;
    Keyboard keyboard_;
    Clock clock_;
    SystemClock systemClock_;
    Network network_;
    Workstation workstation_;
    Socket socket_;
    Clipboard clipboard_;
    Beeper beeper_;
    Browser browser_;
    Messages messages_;
    Menus menus_;
    ToolTips toolTips_;
    Tray tray_;
    Program program_;

  public:
    // The machine as the program sees it.
    platform::Machine services;
};

}  // namespace platform::absent
