#pragma once

#include "platform/machine.h"
#include "platform/simulated/autostart.h"
#include "platform/simulated/beeper.h"
#include "platform/simulated/browser.h"
#include "platform/simulated/clipboard.h"
#include "platform/simulated/clock.h"
#include "platform/simulated/disk.h"
#include "platform/simulated/display.h"
#include "platform/simulated/faults.h"
#include "platform/simulated/files.h"
#include "platform/simulated/folders.h"
#include "platform/simulated/forms.h"
#include "platform/simulated/internetcache.h"
#include "platform/simulated/journal.h"
#include "platform/simulated/keyboard.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/memory.h"
#include "platform/simulated/menus.h"
#include "platform/simulated/messages.h"
#include "platform/simulated/network.h"
#include "platform/simulated/operatingsystem.h"
#include "platform/simulated/otherwindows.h"
#include "platform/simulated/processes.h"
#include "platform/simulated/program.h"
#include "platform/simulated/registry.h"
#include "platform/simulated/session.h"
#include "platform/simulated/settingsstore.h"
#include "platform/simulated/shell.h"
#include "platform/simulated/socket.h"
#include "platform/simulated/systemclock.h"
#include "platform/simulated/systemfacts.h"
#include "platform/simulated/systeminformation.h"
#include "platform/simulated/tooltips.h"
#include "platform/simulated/tray.h"
#include "platform/simulated/workstation.h"

namespace platform::simulated {

// A whole Windows XP in memory: seeded by a test, remembering every call, answering boxes and
// dialogs from a script, moving time on request, failing where it is told to. A fresh one is a
// German XP Professional with Service Pack 3, build 2600, code page 1252, an empty registry with
// its three roots, an empty settings store, the program in C:\Programme\Quillmore.
class Machine {
  public:
    Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    Journal journal;
    Faults faults;
    Forms forms;
    Registry registry;
    SettingsStore settingsStore;
    Disk disk;
    Files files;
    Folders folders;
    Processes processes;
    Shell shell;
    Session session;
    AutoStart autostart;
    OperatingSystem operatingSystem;
    Memory memory;
    SystemInformation systemInformation;
    SystemFacts systemFacts;
    InternetCache internetCache;
    OtherWindows otherWindows;
    Display display;
    Keyboard keyboard;
    Clock clock;
    SystemClock systemClock;
    Network network;
    Workstation workstation;
    Socket socket;
    Locale locale;
    Clipboard clipboard;
    Beeper beeper;
    Browser browser;
    Messages messages;
    Menus menus;
    ToolTips toolTips;
    Tray tray;
    Program program;

    // The machine as the program sees it.
    platform::Machine services;
};

}  // namespace platform::simulated
