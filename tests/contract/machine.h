#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/machine.h"
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

    // Lets events through until `done`, at most for the given time. Returns `done`.
    bool PassTime(int milliseconds, const std::function<bool()>& done);

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
