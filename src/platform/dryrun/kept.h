#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/autostart.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/settingsstore.h"

// The small services whose calls a dry run keeps.
namespace platform::dryrun {

// Notes what would be started. Such a process has an end at once, with exit code 0.
class Processes final : public platform::Processes {
  public:
    Handle Create(std::string_view commandLine, std::uint32_t creationFlags,
                  const StartupInfo& startup) override;
    std::uint32_t Start(std::string_view commandLine, std::int32_t windowStyle) override;
    Handle Open(std::uint32_t access, std::uint32_t processId) override;
    std::optional<std::uint32_t> ExitCode(Handle process) override;
    void WaitForEnd(Handle process) override;
    bool Close(Handle process) override;

    // Command lines in the order of their starts.
    std::vector<std::string> started;

  private:
    Handle NewHandle();

    Handle last_ = 0;
    std::vector<Handle> open_;
};

struct Message {
    std::string text;
    int style = 0;
    std::string title;

    bool operator==(const Message&) const = default;
};

// The answer of who presses Enter: that of the first button.
int EnterKey(const Message& message);

// Collects the boxes, showing none.
class Messages final : public platform::Messages {
  public:
    using Answer = std::function<int(const Message&)>;

    explicit Messages(Answer answer) : answer_(std::move(answer)) {}

    int Show(std::string_view text, int style, std::string_view title) override;

    std::vector<Message> shown;

  private:
    Answer answer_;
};

class SettingsStore final : public platform::SettingsStore {
  public:
    explicit SettingsStore(const platform::SettingsStore& inner) : inner_(inner) {}

    std::string Get(std::string_view title, std::string_view section, std::string_view key,
                    std::string_view fallback) const override;
    void Save(std::string_view title, std::string_view section, std::string_view key,
              std::string_view text) override;
    void DeleteSection(std::string_view title, std::string_view section) override;

  private:
    // A section that was deleted is looked up here alone.
    struct Section {
        bool readsThrough = true;
        std::map<std::string, std::string> texts;
    };
    // By title and section in small letters.
    std::map<std::pair<std::string, std::string>, Section> sections_;
    const platform::SettingsStore& inner_;
};

class AutoStart final : public platform::AutoStart {
  public:
    explicit AutoStart(const platform::AutoStart& inner) : inner_(inner) {}

    bool AutoStartAdd(std::string_view directory, std::string_view title,
                      std::string_view executable) override;
    bool AutoStartRemove(std::string_view title) override;
    bool AutoStartExists(std::string_view title) const override;

  private:
    // Titles in small letters, and whether there is an entry now.
    std::map<std::string, bool> entries_;
    const platform::AutoStart& inner_;
};

}  // namespace platform::dryrun
