#pragma once

#include "platform/dryrun/files.h"
#include "platform/dryrun/harmless.h"
#include "platform/dryrun/kept.h"
#include "platform/dryrun/registry.h"
#include "platform/machine.h"

namespace platform::dryrun {

// A machine over another one, of which it changes nothing: it shows that one as it would be after
// all that has been done here. Of each service the calls that change something are kept, to be read
// back and told, or do nothing; all others are passed through to the machine below.
//
//   registry           kept: keys and values, Changes()
//   files              kept: contents, Changes()
//   settingsStore      kept
//   autostart          kept
//   processes          kept: noted as started, none is; none is opened by its id
//   messages           kept: noted as shown, answered as told
//   folders            nothing: Remove, MakeCurrent
//   shell              nothing: Execute, ObjectProperties, OperateOnFiles, EmptyRecycleBin,
//                      BrowseForFolder, which is cancelled
//   internetCache      nothing: Remove
//   otherWindows       nothing: all but finding them and asking their style
//   memory             nothing: Blanks, which takes none
//   toolTips           nothing: there is no such window; the resolution is passed through
//   session, systemClock, socket, clipboard, beeper, browser, menus, tray
//                      nothing at all
//   operatingSystem, systemFacts, systemInformation, display, keyboard, clock, network,
//   workstation, locale
//                      passed through: they tell; the clock's timers are the program's own
//   forms, program     passed through: the program's own windows and its own end
class Machine {
  public:
    explicit Machine(const platform::Machine& inner, Messages::Answer answer = EnterKey);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    Registry registry;
    Folders folders;
    Files files;
    SettingsStore settingsStore;
    AutoStart autostart;
    Processes processes;
    Messages messages;
    Shell shell;
    InternetCache internetCache;
    OtherWindows otherWindows;
    Memory memory;
    ToolTips toolTips;
    Session session;
    SystemClock systemClock;
    Socket socket;
    Clipboard clipboard;
    Beeper beeper;
    Browser browser;
    Menus menus;
    Tray tray;

    // The machine as the program sees it.
    platform::Machine services;
};

}  // namespace platform::dryrun
