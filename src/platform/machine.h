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
class Folders;
class InternetCache;
class Keyboard;
class Locale;
class Memory;
class Menus;
class Messages;
class Network;
class OperatingSystem;
class OtherWindows;
class Processes;
class Program;
class Registry;
class Session;
class SettingsStore;
class Shell;
class Socket;
class SystemClock;
class SystemFacts;
class SystemInformation;
class ToolTips;
class Tray;
class Workstation;

// Everything the program asks of Windows, handed to it through constructors. It is only references:
// handed on it is a `const Machine&`, and whoever keeps it for longer than a call keeps a copy,
// which may outlive it; the services outlive both.
struct Machine {
    toolkit::FormHost& forms;
    Registry& registry;
    SettingsStore& settingsStore;
    Files& files;
    Folders& folders;
    Processes& processes;
    Shell& shell;
    Session& session;
    AutoStart& autostart;
    OperatingSystem& operatingSystem;
    SystemFacts& systemFacts;
    SystemInformation& systemInformation;
    Memory& memory;
    InternetCache& internetCache;
    OtherWindows& otherWindows;
    Display& display;
    Keyboard& keyboard;
    Clock& clock;
    SystemClock& systemClock;
    Network& network;
    Workstation& workstation;
    Socket& socket;
    Locale& locale;
    Clipboard& clipboard;
    Beeper& beeper;
    Browser& browser;
    Messages& messages;
    Menus& menus;
    ToolTips& toolTips;
    Tray& tray;
    Program& program;
};

}  // namespace platform
