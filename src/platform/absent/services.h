#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/autostart.h"
#include "platform/beeper.h"
#include "platform/browser.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/display.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/internetcache.h"
#include "platform/keyboard.h"
#include "platform/menus.h"
#include "platform/messages.h"
#include "platform/network.h"
#include "platform/otherwindows.h"
#include "platform/processes.h"
#include "platform/program.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/socket.h"
#include "platform/systemclock.h"
#include "platform/systeminformation.h"
#include "platform/tooltips.h"
#include "platform/tray.h"
#include "platform/workstation.h"
#include "runtime/failure.h"
#include "runtime/mistake.h"
#include "toolkit/form.h"

// Services of which there is nothing: no screen, no user, no disk, no other program. Each answers
// as its port says for what is not there, or fails so.
namespace platform::absent {

// Forms are loaded and hold what they hold, without windows.
class Forms final : public toolkit::FormHost {
  public:
    void Open(toolkit::Form&) override {}
    void RunModal(toolkit::Form&) override {
        throw runtime::Mistake("nobody is there to end a dialog");
    }
    void Close(toolkit::Form&) override {}
    toolkit::Bounds WorkArea() const override { return {}; }
    std::vector<toolkit::Form*> OpenForms() const override { return {}; }
};

class AutoStart final : public platform::AutoStart {
  public:
    bool AutoStartAdd(std::string_view, std::string_view, std::string_view) override {
        return false;
    }
    bool AutoStartRemove(std::string_view) override { return false; }
    bool AutoStartExists(std::string_view) const override { return false; }
};

class Beeper final : public platform::Beeper {
  public:
    void Beep() override {}
};

class Browser final : public platform::Browser {
  public:
    std::unique_ptr<BrowserWindow> CreateInternetExplorer() override {
        throw runtime::Failure(runtime::CannotCreateObject);
    }
};

class Clipboard final : public platform::Clipboard {
  public:
    bool SetText(std::string_view) override { return false; }
};

// A clock that stands still.
class Clock final : public platform::Clock {
  public:
    LocalTime Now() const override { return {}; }
    float SecondsSinceMidnight() const override { return 0; }
    Timer StartTimer(int, std::function<void()>) override { return 1; }
    void StopTimer(Timer) override {}
};

class Display final : public platform::Display {
  public:
    toolkit::Size Size() const override { return {}; }
    std::string CompactPath(const toolkit::Form&, std::string_view path, int) const override {
        return std::string(path);
    }
};

class Files final : public platform::Files {
  public:
    Handle OpenForAppend(std::string_view) override { Fail(); }
    Handle OpenForReading(std::string_view) override { Fail(); }
    void Write(Handle, std::string_view) override {
        throw runtime::Failure(runtime::BadFileNumber);
    }
    void Close(Handle) override {}
    std::string Read(std::string_view) override { Fail(); }
    void Remove(std::string_view, bool) override { Fail(); }
    void WriteText(std::string_view, std::string_view) override { Fail(); }

  private:
    [[noreturn]] static void Fail() { throw runtime::Failure(runtime::PathNotFound); }
};

class Folders final : public platform::Folders {
  public:
    std::vector<FolderEntry> List(std::string_view) override { Fail(); }
    std::optional<FolderEntry> Find(std::string_view) const override { return std::nullopt; }
    std::string FullPath(std::string_view path) const override { return std::string(path); }
    void MakeCurrent(std::string_view) override { Fail(); }
    std::string ShortPath(std::string_view, std::size_t) const override { return ""; }
    std::string LongPath(std::string_view path) const override { return std::string(path); }
    void Remove(std::string_view, bool) override { Fail(); }

  private:
    [[noreturn]] static void Fail() { throw runtime::Failure(runtime::PathNotFound); }
};

class InternetCache final : public platform::InternetCache {
  public:
    std::uint32_t FindFirst(const char*, Address, std::uint32_t&, Handle& search) override {
        constexpr std::uint32_t noMoreItems = 259;
        search = 0;
        return noMoreItems;
    }
    bool FindNext(Handle, Address, std::uint32_t&) override { return false; }
    void CloseSearch(Handle) override {}
    void Remove(std::string_view) override {}
    Address Allocate(std::uint32_t) override { return 0; }
    void Free(Address) override {}
    void Write(Address, const void*, std::uint32_t) override {}
    void Read(void*, Address, std::uint32_t) const override {}
};

class Keyboard final : public platform::Keyboard {
  public:
    std::int16_t AsyncState(int) override { return 0; }
};

class Menus final : public platform::Menus {
  public:
    const toolkit::MenuItem* Choose(const toolkit::PopupMenu&) override { return nullptr; }
};

// No box can be shown.
class Messages final : public platform::Messages {
  public:
    int Show(std::string_view, int, std::string_view) override { return 0; }
};

class Network final : public platform::Network {
  public:
    std::optional<TimeOfDay> RemoteTimeOfDay(const std::string&) const override {
        return std::nullopt;
    }
    std::uint32_t CountDialUpConnections(std::uint32_t& count) const override {
        count = 0;
        return 0;
    }
};

class OtherWindows final : public platform::OtherWindows {
  public:
    Handle Find(const std::string&, const char*) const override { return 0; }
    Handle FindChild(Handle, const std::string&) const override { return 0; }
    std::uint32_t ExtendedStyle(Handle) const override { return 0; }
    void SetExtendedStyle(Handle, std::uint32_t) override {}
    void SetLayeredAttributes(Handle, std::uint32_t, std::uint8_t, std::uint32_t) override {}
    std::int32_t Send(Handle, std::uint32_t, std::uint32_t, std::uint32_t) override { return 0; }
    void SetPosition(Handle, Handle, const toolkit::Rect&, std::uint32_t) override {}
    void Redraw(Handle) override {}
};

class Processes final : public platform::Processes {
  public:
    Handle Create(std::string_view, std::uint32_t, const StartupInfo&) override { return 0; }
    std::uint32_t Start(std::string_view, std::int32_t) override {
        throw runtime::Failure(runtime::FileNotFound);
    }
    Handle Open(std::uint32_t, std::uint32_t) override { return 0; }
    std::optional<std::uint32_t> ExitCode(Handle) override { return std::nullopt; }
    void WaitForEnd(Handle) override {}
    bool Close(Handle) override { return false; }
};

class Program final : public platform::Program {
  public:
    std::string Directory() const override { return ""; }
    std::string ExecutableName() const override { return ""; }
    std::string CommandLine() const override { return ""; }
    [[noreturn]] void End() override { throw runtime::Mistake("no program to end"); }
};

class Session final : public platform::Session {
  public:
    void ExitSession(std::int32_t, std::int32_t) override {}
};

class Shell final : public platform::Shell {
  public:
    void Execute(std::string_view, std::string_view, std::string_view, std::string_view,
                 std::int32_t) override {}
    void ObjectProperties(std::int32_t) override {
        throw runtime::Failure(runtime::DllFunctionNotFound);
    }
    std::int32_t OperateOnFiles(std::uint32_t, std::string_view, std::uint16_t) override {
        constexpr std::int32_t fileNotFound = 2;
        return fileNotFound;
    }
    void EmptyRecycleBin(std::uint32_t) override {}
    std::string TypeName(std::string_view, std::uint32_t) const override { return ""; }
    std::string BrowseForFolder(const toolkit::Form&, std::string_view, std::uint32_t,
                                const FolderCallback&) override {
        return "";
    }
    std::string SpecialFolder(std::int32_t) const override { return ""; }
};

class Socket final : public platform::Socket {
  public:
    int State() const override { return Closed; }
    void Connect() override { throw runtime::Failure(runtime::CannotCreateObject); }
    void Close() override {}
    std::string GetData() override { return ""; }
};

class SystemClock final : public platform::SystemClock {
  public:
    void SetSystemTime(const LocalTime&) override {}
    void SetLocalDate(const LocalTime&) override { Refuse(); }
    void SetLocalTime(const LocalTime&) override { Refuse(); }

  private:
    [[noreturn]] static void Refuse() { throw runtime::Failure(runtime::PermissionDenied); }
};

class SystemInformation final : public platform::SystemInformation {
  public:
    std::optional<std::string> ServicePack() const override { return std::nullopt; }
    std::optional<int> ProcessorCount() const override { return std::nullopt; }
    std::optional<PhysicalMemory> Memory() const override { return std::nullopt; }
    std::vector<Drive> Drives() const override { return {}; }
    Volume VolumeOn(std::string_view) const override { return {}; }
    std::optional<ScreenFormat> MainScreen() const override { return std::nullopt; }
    std::optional<std::string> ComputerName() const override { return std::nullopt; }
};

class ToolTips final : public platform::ToolTips {
  public:
    void InitControls() override {}
    Handle Create(std::uint32_t, std::uint32_t) override { return 0; }
    void Destroy(Handle) override {}
    std::uint32_t WindowStyle(Handle) const override { return 0; }
    void SetWindowStyle(Handle, std::uint32_t) override {}
    void Send(Handle, std::uint32_t, std::uintptr_t, std::uintptr_t) override {}
    void SendTool(Handle, std::uint32_t, TipTool&, const char*) override {}
    std::int32_t VerticalResolution() const override { return 0; }
    Handle MakeFont(std::int32_t, const TipFont&) override { return 0; }
    void DeleteFont(Handle) override {}
};

class Tray final : public platform::Tray {
  public:
    void SetIcon() override {}
    void SetTip(std::string_view) override {}
    void SetShown(bool) override {}
};

class Workstation final : public platform::Workstation {
  public:
    std::uint32_t EnumerateUsers(const std::string&, UserEnumeration& enumeration) const override {
        constexpr std::uint32_t notSupported = 50;
        enumeration.users.clear();
        return notSupported;
    }
    void FreeBuffer(std::uintptr_t) const override {}
    std::string SystemMessage(std::uint32_t) const override { return std::string(256, ' '); }
};

}  // namespace platform::absent
