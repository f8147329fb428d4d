#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/beeper.h"
#include "platform/browser.h"
#include "platform/clipboard.h"
#include "platform/folders.h"
#include "platform/internetcache.h"
#include "platform/memory.h"
#include "platform/menus.h"
#include "platform/otherwindows.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/socket.h"
#include "platform/systemclock.h"
#include "platform/tooltips.h"
#include "platform/tray.h"
#include "toolkit/geometry.h"

// Services that answer what they are asked and do nothing that would be seen, heard or left behind.
namespace platform::dryrun {

class Beeper final : public platform::Beeper {
  public:
    void Beep() override {}
};

class BrowserWindow final : public platform::BrowserWindow {
  public:
    void SetVisible(bool) override {}
    void Navigate(std::string_view) override {}
    void SetWidth(int) override {}
    void SetHeight(int) override {}
};

class Browser final : public platform::Browser {
  public:
    std::unique_ptr<platform::BrowserWindow> CreateInternetExplorer() override {
        return std::make_unique<BrowserWindow>();
    }
};

class Clipboard final : public platform::Clipboard {
  public:
    bool SetText(std::string_view) override { return true; }
};

class Folders final : public platform::Folders {
  public:
    explicit Folders(platform::Folders& inner) : inner_(inner) {}

    std::vector<FolderEntry> List(std::string_view path) override { return inner_.List(path); }
    std::optional<FolderEntry> Find(std::string_view path) const override {
        return inner_.Find(path);
    }
    std::string FullPath(std::string_view path) const override { return inner_.FullPath(path); }
    void MakeCurrent(std::string_view) override {}
    std::string ShortPath(std::string_view path, std::size_t room) const override {
        return inner_.ShortPath(path, room);
    }
    std::string LongPath(std::string_view path) const override { return inner_.LongPath(path); }
    void Remove(std::string_view, bool) override {}

  private:
    platform::Folders& inner_;
};

class InternetCache final : public platform::InternetCache {
  public:
    explicit InternetCache(platform::InternetCache& inner) : inner_(inner) {}

    std::uint32_t FindFirst(const char* pattern, Address block, std::uint32_t& size,
                            Handle& search) override {
        return inner_.FindFirst(pattern, block, size, search);
    }
    bool FindNext(Handle search, Address block, std::uint32_t& size) override {
        return inner_.FindNext(search, block, size);
    }
    void CloseSearch(Handle search) override { inner_.CloseSearch(search); }
    void Remove(std::string_view) override {}
    Address Allocate(std::uint32_t size) override { return inner_.Allocate(size); }
    void Free(Address block) override { inner_.Free(block); }
    void Write(Address to, const void* bytes, std::uint32_t size) override {
        inner_.Write(to, bytes, size);
    }
    void Read(void* to, Address from, std::uint32_t size) const override {
        inner_.Read(to, from, size);
    }

  private:
    platform::InternetCache& inner_;
};

// Large blocks press other programs out of memory, so these are none.
class Memory final : public platform::Memory {
  public:
    explicit Memory(const platform::Memory& inner) : inner_(inner) {}

    std::string TotalPhysical() const override { return inner_.TotalPhysical(); }
    std::int32_t PhysicalBytes() const override { return inner_.PhysicalBytes(); }
    std::unique_ptr<MemoryBlock> Blanks(std::size_t) override {
        return std::make_unique<MemoryBlock>();
    }

  private:
    const platform::Memory& inner_;
};

class Menus final : public platform::Menus {
  public:
    const toolkit::MenuItem* Choose(const toolkit::PopupMenu&) override { return nullptr; }
};

class OtherWindows final : public platform::OtherWindows {
  public:
    explicit OtherWindows(const platform::OtherWindows& inner) : inner_(inner) {}

    Handle Find(const std::string& className, const char* title) const override {
        return inner_.Find(className, title);
    }
    Handle FindChild(Handle parent, const std::string& className) const override {
        return inner_.FindChild(parent, className);
    }
    std::uint32_t ExtendedStyle(Handle window) const override {
        return inner_.ExtendedStyle(window);
    }
    void SetExtendedStyle(Handle, std::uint32_t) override {}
    void SetLayeredAttributes(Handle, std::uint32_t, std::uint8_t, std::uint32_t) override {}
    std::int32_t Send(Handle, std::uint32_t, std::uint32_t, std::uint32_t) override { return 0; }
    void SetPosition(Handle, Handle, const toolkit::Rect&, std::uint32_t) override {}
    void Redraw(Handle) override {}

  private:
    const platform::OtherWindows& inner_;
};

class Session final : public platform::Session {
  public:
    void ExitSession(std::int32_t, std::int32_t) override {}
};

class Shell final : public platform::Shell {
  public:
    explicit Shell(const platform::Shell& inner) : inner_(inner) {}

    void Execute(std::string_view, std::string_view, std::string_view, std::string_view,
                 std::int32_t) override {}
    void ObjectProperties(std::int32_t) override {}
    std::int32_t OperateOnFiles(std::uint32_t, std::string_view, std::uint16_t) override {
        return 0;
    }
    void EmptyRecycleBin(std::uint32_t) override {}
    std::string TypeName(std::string_view path, std::uint32_t attributes) const override {
        return inner_.TypeName(path, attributes);
    }
    std::string BrowseForFolder(const toolkit::Form&, std::string_view, std::uint32_t,
                                const FolderCallback&) override {
        return "";
    }
    std::string SpecialFolder(std::int32_t csidl) const override {
        return inner_.SpecialFolder(csidl);
    }

  private:
    const platform::Shell& inner_;
};

// Stays closed, and so never has an event.
class Socket final : public platform::Socket {
  public:
    int State() const override { return Closed; }
    void Connect() override {}
    void Close() override {}
    std::string GetData() override { return ""; }
};

class SystemClock final : public platform::SystemClock {
  public:
    void SetSystemTime(const LocalTime&) override {}
    void SetLocalDate(const LocalTime&) override {}
    void SetLocalTime(const LocalTime&) override {}
};

class ToolTips final : public platform::ToolTips {
  public:
    explicit ToolTips(const platform::ToolTips& inner) : inner_(inner) {}

    void InitControls() override {}
    Handle Create(std::uint32_t, std::uint32_t) override { return 0; }
    void Destroy(Handle) override {}
    std::uint32_t WindowStyle(Handle) const override { return 0; }
    void SetWindowStyle(Handle, std::uint32_t) override {}
    void Send(Handle, std::uint32_t, std::uintptr_t, std::uintptr_t) override {}
    void SendTool(Handle, std::uint32_t, TipTool&, const char*) override {}
    std::int32_t VerticalResolution() const override { return inner_.VerticalResolution(); }
    Handle MakeFont(std::int32_t, const TipFont&) override { return 0; }
    void DeleteFont(Handle) override {}

  private:
    const platform::ToolTips& inner_;
};

class Tray final : public platform::Tray {
  public:
    void SetIcon() override {}
    void SetTip(std::string_view) override {}
    void SetShown(bool) override {}
};

}  // namespace platform::dryrun
