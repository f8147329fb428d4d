#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/machine.h"
#include "platform/otherwindows.h"
#include "platform/registry.h"

// One suite for two machines. The cases below know the services by their interfaces only; which
// machine stands behind them is decided by the source that is linked: machine_simulated.cpp in the
// native build, machine_win32.cpp in the Windows one.
namespace contract {

// All that the suite leaves behind lies under this name and is taken away with the machine: in the
// registry below Scratch under each root, in the settings store and in the autostart as title.
inline constexpr std::string_view Title = "QuillmoreContract";
inline constexpr std::string_view Scratch = "Software\\QuillmoreContract";

// A value as it is really stored, not as a query completes it. Texts are in the ANSI code page.
struct Stored {
    std::uint32_t type = 0;
    std::string bytes;

    bool operator==(const Stored&) const = default;
};

// What there is to see of a window of another program.
struct WindowLook {
    std::uint32_t extendedStyle = 0;
    // 255 where nobody has set it.
    int alpha = 255;
    std::uint32_t textBackground = 0;
    // In its parent.
    toolkit::Rect place;
    bool visible = true;
    // How often it was drawn anew from its background on.
    int redraws = 0;

    bool operator==(const WindowLook&) const = default;
};

class TestMachine {
  public:
    TestMachine();
    ~TestMachine();
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    platform::Machine& Services();

    std::optional<Stored> StoredAt(platform::Registry::Key root, std::string_view path,
                                   std::string_view valueName) const;

    // A path in an empty directory that may be written to.
    std::string FilePath(std::string_view name) const;
    std::optional<std::string> FileContent(std::string_view path) const;
    // Gives the file the read-only attribute.
    void Protect(std::string_view path);

    // A window of that class, shown above its brothers; it goes with the machine at the latest.
    platform::OtherWindows::Handle OpenWindow(std::string_view className, std::string_view title,
                                              platform::OtherWindows::Handle parent = 0);
    void EndWindow(platform::OtherWindows::Handle window);
    WindowLook LookAt(platform::OtherWindows::Handle window) const;

    // What the program holds in memory.
    std::size_t ResidentBytes() const;

    // The text in the clipboard; nothing when it holds none.
    std::optional<std::string> ClipboardText() const;

    // Lets events through until `done`, at most for the given time. Returns `done`.
    bool PassTime(int milliseconds, const std::function<bool()>& done);

    // The user of the next pop-up menu chooses the item with that caption, or leaves the menu where
    // that is empty. `whileOpen` runs before.
    void UseNextMenu(std::string caption, std::function<void()> whileOpen = nullptr);

    // The user of the next folder dialog leaves it as it opened and closes it with OK, or cancels.
    void UseNextFolderDialog(bool ok);

    // Command lines of a program that ends soon, and of one that is not there.
    std::string EndingCommand() const;
    std::string MissingCommand();

    // What the program service must tell.
    std::string ExpectedDirectory() const;
    std::string ExpectedName() const;

  private:
    struct Inside;
    std::unique_ptr<Inside> inside_;
};

}  // namespace contract
