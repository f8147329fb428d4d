#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "cmd/run.h"
#include "cmd/surroundings.h"
#include "platform/simulated/machine.h"
#include "platform/simulated/wideregistry.h"

namespace cmd_test {

using platform::simulated::BareTextValue;
using platform::simulated::DwordValue;
using platform::simulated::StoredValue;
using platform::simulated::TextValue;

inline constexpr platform::Registry::Key HKCR = platform::Registry::ClassesRoot;
inline constexpr platform::Registry::Key HKCU = platform::Registry::CurrentUser;
inline constexpr platform::Registry::Key HKLM = platform::Registry::LocalMachine;

inline constexpr char DesktopKey[] = "Control Panel\\Desktop";
inline constexpr char PoliciesKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

inline bool Has(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// A console in memory, with a user who answers from a script, and a disk of files by their names.
class Console final : public cmd::Surroundings {
  public:
    void Out(std::string_view text) override { out += text; }
    void Err(std::string_view text) override { err += text; }
    void UseUtf8() override { utf8 = true; }
    bool OutputIsSeen() const override { return isSeen; }
    std::optional<std::string> ReadLine() override {
        if (answers.empty()) return std::nullopt;
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string ReadFile(std::string_view path) override {
        const auto file = files.find(path);
        if (file == files.end()) throw cmd::FileFailure("Datei nicht gefunden");
        return file->second;
    }
    void WriteNewFile(std::string_view path, std::string_view bytes) override {
        if (files.contains(path)) throw cmd::FileFailure("Datei ist schon vorhanden");
        if (diskIsFull) throw cmd::FileFailure("Datenträger voll");
        files.emplace(path, bytes);
    }
    std::string SystemText(int error) const override { return "Grund " + std::to_string(error); }

    std::string out;
    std::string err;
    bool utf8 = false;
    bool isSeen = true;
    bool diskIsFull = false;
    std::deque<std::string> answers;
    std::map<std::string, std::string, std::less<>> files;
};

// The console program on a simulated machine.
struct Program {
    platform::simulated::Machine machine;
    platform::simulated::WideRegistry wide{machine.registry};
    Console console;

    // What came out before is forgotten.
    int Run(const std::vector<std::string>& arguments);

    std::vector<std::string> OutLines() const;
    std::vector<std::string> ErrLines() const;
};

std::vector<std::string> LinesOf(const std::string& text);

}  // namespace cmd_test
