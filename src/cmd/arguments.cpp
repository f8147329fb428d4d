#include "cmd/arguments.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "cmd/badinput.h"
#include "cmd/optionswindow.h"
#include "runtime/text.h"

namespace cmd {
namespace {

enum class FileUse { None, Optional, Needed };

struct Command {
    std::string_view name;
    Verb verb;
    FileUse file;
    // The switches that it knows beside those that all know.
    std::string_view switches;
};

constexpr Command Commands[] = {
    {"state", Verb::State, FileUse::None, "csv"},
    {"profile", Verb::Profile, FileUse::Needed, ""},
    {"plan", Verb::Plan, FileUse::Optional, "preset reg"},
    {"backup", Verb::Backup, FileUse::Needed, ""},
    {"apply", Verb::Apply, FileUse::Optional, "preset backup nobackup yes"},
    {"restore", Verb::Restore, FileUse::Needed, "yes"},
};

constexpr std::string_view OfAll = "raw utf8";

// A word among others.
bool Has(std::string_view words, std::string_view word) {
    return (' ' + std::string(words) + ' ').find(' ' + std::string(word) + ' ') !=
           std::string::npos;
}

struct Switch {
    std::string name;
    std::string value;
    bool hasValue = false;
};

Switch SplitSwitch(std::string_view text) {
    text.remove_prefix(1);
    const std::size_t colon = text.find(':');
    Switch split{runtime::ToLower(text.substr(0, colon)), ""};
    if (colon == std::string_view::npos) return split;
    split.value = text.substr(colon + 1);
    split.hasValue = true;
    return split;
}

std::vector<std::string> SplitAtCommas(std::string_view text) {
    std::vector<std::string> parts;
    while (true) {
        const std::size_t comma = text.find(',');
        parts.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos) return parts;
        text.remove_prefix(comma + 1);
    }
}

class Parser {
  public:
    Arguments Parse(const std::vector<std::string>& given) {
        for (const std::string& argument : given) {
            const bool isSwitch = argument.size() > 1 && (argument[0] == '/' || argument[0] == '-');
            if (isSwitch) {
                switches_.push_back(SplitSwitch(argument));
            } else {
                TakeWord(argument);
            }
        }
        for (const Switch& one : switches_) {
            if (Has("? h help -help", one.name)) return {};
        }
        if (!command_) {
            if (switches_.empty()) return {};
            throw BadInput("vor oder hinter /" + switches_.front().name + " fehlt der Befehl");
        }
        arguments_.verb = command_->verb;
        if (command_->file == FileUse::Needed && arguments_.file.empty()) {
            throw BadInput("hinter " + std::string(command_->name) + " fehlt die Datei");
        }
        for (const Switch& one : switches_) TakeSwitch(one);
        if (arguments_.verb == Verb::Apply && arguments_.backupFile.empty() == !noBackup_) {
            throw BadInput(
                "apply braucht /backup:DATEI.reg oder /nobackup, und nur eines von beiden");
        }
        return arguments_;
    }

  private:
    void TakeWord(const std::string& word) {
        if (!command_) {
            const std::string name = runtime::ToLower(word);
            command_ = std::find_if(std::begin(Commands), std::end(Commands),
                                    [&](const Command& command) { return command.name == name; });
            if (command_ == std::end(Commands)) {
                throw BadInput("unbekannter Befehl \"" + word + '"');
            }
            return;
        }
        if (word.empty()) throw BadInput("ein Name ist leer");
        if (command_->file == FileUse::None || !arguments_.file.empty()) {
            throw BadInput("\"" + word + "\" ist hier zu viel");
        }
        arguments_.file = word;
    }

    void TakeSwitch(const Switch& one) {
        if (!Has(command_->switches, one.name) && !Has(OfAll, one.name)) {
            throw BadInput(std::string(command_->name) + " kennt keinen Schalter /" + one.name);
        }
        if (std::count_if(switches_.begin(), switches_.end(), [&](const Switch& other) {
                return other.name == one.name && one.name != "preset";
            }) > 1) {
            throw BadInput("/" + one.name + " steht zweimal da");
        }
        const bool wantsValue = one.name == "preset" || one.name == "reg" || one.name == "backup";
        if (wantsValue && one.value.empty()) {
            throw BadInput("hinter /" + one.name + ": fehlt etwas");
        }
        if (!wantsValue && one.hasValue) {
            throw BadInput("hinter /" + one.name + " gehört nichts");
        }
        if (one.name == "preset") {
            for (std::string& preset : SplitAtCommas(one.value)) {
                OptionsWindow::CheckPreset(preset);
                arguments_.presets.push_back(std::move(preset));
            }
        }
        if (one.name == "reg") arguments_.regFile = one.value;
        if (one.name == "backup") arguments_.backupFile = one.value;
        noBackup_ |= one.name == "nobackup";
        arguments_.csv |= one.name == "csv";
        arguments_.yes |= one.name == "yes";
        arguments_.raw |= one.name == "raw";
        arguments_.utf8 |= one.name == "utf8";
    }

    Arguments arguments_;
    const Command* command_ = nullptr;
    std::vector<Switch> switches_;
    bool noBackup_ = false;
};

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& given) {
    return Parser().Parse(given);
}

}  // namespace cmd
