#pragma once

namespace toolkit {
class FormHost;
}

namespace platform {

class AutoStart;
class Beeper;
class Browser;
class Clipboard;
class Clock;
class Display;
class Files;
class Locale;
class Memory;
class Menus;
class Messages;
class OperatingSystem;
class OtherWindows;
class Processes;
class Program;
class Registry;
class Session;
class SettingsStore;
class Shell;
class SystemFacts;
class SystemInformation;
class Tray;

// Everything the program asks of Windows, handed to it through constructors.
struct Machine {
    toolkit::FormHost& forms;
    Registry& registry;
    SettingsStore& settings;
    Files& files;
    Processes& processes;
    Shell& shell;
    Session& session;
    AutoStart& autostart;
    OperatingSystem& system;
    SystemFacts& facts;
    SystemInformation& information;
    Memory& memory;
    OtherWindows& windows;
    Display& display;
    Clock& clock;
    Locale& locale;
    Clipboard& clipboard;
    Beeper& beeper;
    Browser& browser;
    Messages& messages;
    Menus& menus;
    Tray& tray;
    Program& program;
};

}  // namespace platform
