#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/machine.h"
#include "platform/otherwindows.h"
#include "platform/registry.h"
#include "platform/tooltips.h"
#include "platform/wideregistry.h"
#include "support/serveranswer.h"

// One suite for two machines. The cases below know the services by their interfaces only; which
// machine stands behind them is decided by the source that is linked: machine_simulated.cpp in the
// native build, machine_win32.cpp in the Windows one.
namespace contract {

// A class of windows that nothing else on the machine has.
inline constexpr char StandInClass[] = "QuillmoreStandIn";

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

// What a tooltip window has been told.
struct TipLook {
    std::uint32_t textColour = 0;
    std::uint32_t backColour = 0;
    int visibleTime = 0;
    int delayTime = 0;
    int width = 0;
    int tools = 0;

    bool operator==(const TipLook&) const = default;
};

// What a clock was set to.
struct ClockSetting {
    // In UTC, or else in local time.
    bool system = false;
    platform::LocalTime moment;

    bool operator==(const ClockSetting&) const = default;
};

class TestMachine {
  public:
    TestMachine();
    ~TestMachine();
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    platform::Machine& Services();

    // The registry's other door, always that of the machine itself.
    platform::WideRegistry& Wide();

    std::optional<Stored> StoredAt(platform::Registry::Key root, std::string_view path,
                                   std::string_view valueName) const;

    // A path in an empty directory that may be written to.
    std::string FilePath(std::string_view name) const;
    std::optional<std::string> FileContent(std::string_view path) const;
    // Gives the file the read-only attribute.
    void Protect(std::string_view path);
    void MakeFolder(std::string_view path);
    void SetAttributes(std::string_view path, std::uint32_t attributes);
    // A junction or symbolic link at the path to that folder.
    void MakeLink(std::string_view path, std::string_view target);
    // While the action runs, somebody else uses the file in every way and lets others do the same.
    void WithShared(std::string_view path, const std::function<void()>& action);
    // While the action runs, nobody else may read the folder.
    void WithUnreadable(std::string_view path, const std::function<void()>& action);

    // A window of that class, shown above its brothers; it goes with the machine at the latest.
    platform::OtherWindows::Handle OpenWindow(std::string_view className, std::string_view title,
                                              platform::OtherWindows::Handle parent = 0);
    void EndWindow(platform::OtherWindows::Handle window);
    WindowLook LookAt(platform::OtherWindows::Handle window) const;

    TipLook LookAtTips(platform::ToolTips::Handle window) const;
    // The height as in the system's record, and the face, of a font that has been set.
    std::pair<int, std::string> TipFont(platform::ToolTips::Handle window) const;
    // The text of a tool; "" when there is none.
    std::string TipText(platform::ToolTips::Handle window, std::uintptr_t tool,
                        std::uintptr_t id) const;

    // What the program holds in memory.
    std::size_t ResidentBytes() const;

    // Puts an entry into the Internet cache, `type` being its CacheEntryType; the first one finds
    // the cache emptied of all that was there. They go with the machine.
    void AddCacheEntry(std::string_view url, std::uint32_t type);
    // Somebody uses the entry from now on.
    void LockCacheEntry(std::string_view url);

    // The text in the clipboard; nothing when it holds none.
    std::optional<std::string> ClipboardText() const;

    // A server at 127.0.0.1 that answers as many connections, one after the other; its port.
    std::uint16_t Serve(std::vector<ServerAnswer> answers);
    // A port of 127.0.0.1 at which nobody is.
    std::uint16_t RefusingPort();

    // The number that tells of a connection that broke off. Windows has 10054, a connection reset;
    // Wine 10 has 10053, one given up; Wine 8 tells of it as of one that was closed, with 0.
    int NumberOfBreak() const;
    bool HidesBreaks() const { return NumberOfBreak() == 0; }

    // Any Windows XP there is, not one that was made for the suite.
    bool IsRealXp() const;

    // Wine answers no question about who is logged on.
    bool LacksWorkstationService() const;

    // Wine makes keys whose names are longer than Windows lets them be.
    bool TakesTooLongKeys() const;

    // Stands for the service of that kind, which no test may use: what comes out at its far end is
    // noted, and no clock is set.
    platform::SystemClock& NotingClock();
    std::vector<ClockSetting> ClockSettings() const;
    // The system says no to whoever wants to set its clock.
    void RefuseClock();

    // Lets events through until `done`, at most for the given time. Returns `done`.
    bool PassTime(int milliseconds, const std::function<bool()>& done);

    // The user of the next pop-up menu chooses the item with that caption, or leaves the menu where
    // that is empty. `whileOpen` runs before.
    void UseNextMenu(std::string caption, std::function<void()> whileOpen = nullptr);

    // While the action runs, no message box can be shown.
    void WithoutBoxes(const std::function<void()>& action);

    // The user of the next folder dialog leaves it as it opened and closes it with OK, or cancels.
    void UseNextFolderDialog(bool ok);

    // Command lines of a program that ends soon, and of one that is not there.
    std::string EndingCommand() const;
    std::string MissingCommand();

    // The letter of a drive that is not there, with its colon.
    std::string MissingDrive() const;

    // Who is logged on here.
    std::string ExpectedUser() const;

    // What the program service must tell.
    std::string ExpectedDirectory() const;
    std::string ExpectedName() const;

  private:
    struct Inside;
    std::unique_ptr<Inside> inside_;
};

}  // namespace contract
