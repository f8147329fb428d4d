#pragma once

namespace toolkit {
class FormHost;
}

namespace platform {

class AutoStart;
class Clock;
class Files;
class Locale;
class Memory;
class Messages;
class OperatingSystem;
class Processes;
class Program;
class Registry;
class Session;
class SettingsStore;
class SystemFacts;
class Tray;

// Everything the program asks of Windows, handed to it through constructors.
struct Machine {
    toolkit::FormHost& forms;
    Registry& registry;
    SettingsStore& settings;
    Files& files;
    Processes& processes;
    Session& session;
    AutoStart& autostart;
    OperatingSystem& system;
    SystemFacts& facts;
    Memory& memory;
    Clock& clock;
    Locale& locale;
    Messages& messages;
    Tray& tray;
    Program& program;
};

}  // namespace platform
