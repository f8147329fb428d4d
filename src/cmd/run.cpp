#include "cmd/run.h"

#include <algorithm>

#include "cmd/arguments.h"
#include "cmd/backup.h"
#include "cmd/badinput.h"
#include "cmd/help.h"
#include "cmd/optionswindow.h"
#include "cmd/profile.h"
#include "cmd/statelist.h"
#include "cmd/surroundings.h"
#include "platform/operatingsystem.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace cmd {
namespace {

using platform::WideRegistry;

// A profile's line, looked up before anything is set. They are set in the order of the window, as
// one control may take another along.
struct Wish {
    std::size_t setting;
    std::string value;
    int line;
};

std::string LineOf(const std::string& file, const BadInput& input) {
    std::string text = file + ": ";
    if (input.line > 0) text += "Zeile " + std::to_string(input.line) + ": ";
    return text + input.reason;
}

class Runner {
  public:
    Runner(const platform::Machine& machine, WideRegistry& wide, Surroundings& around)
        : machine_(machine), wide_(wide), around_(around) {}

    int Run(const std::vector<std::string>& given) {
        try {
            arguments_ = ParseArguments(given);
        } catch (const BadInput& input) {
            Complain("QuillmoreCmd: " + input.reason + ". Hilfe: QuillmoreCmd /?");
            return WrongInput;
        }
        if (arguments_.utf8) around_.UseUtf8();
        if (arguments_.verb == Verb::Help) {
            around_.Out(Help);
            return Fine;
        }
        if (!arguments_.raw && !SystemFits()) return WrongSystem;
        try {
            const int code = Carry();
            return failed_ ? NotAll : code;
        } catch (const BadInput& input) {
            Complain(LineOf(file_, input));
            return WrongInput;
        } catch (const FileFailure& failure) {
            Complain(file_ + ": " + failure.reason);
            return NotAll;
        }
    }

  private:
    int Carry() {
        switch (arguments_.verb) {
            case Verb::State:
                return State();
            case Verb::Profile:
                return Profile();
            case Verb::Plan:
                return Plan();
            case Verb::Backup:
                WriteBackup(arguments_.file);
                return Fine;
            case Verb::Apply:
                return Apply();
            default:
                return Restore();
        }
    }

    // Only the build counts. A system that does not tell it is not the right one.
    bool SystemFits() {
        platform::OperatingSystemFacts facts;
        runtime::Skip([&] { facts = machine_.operatingSystem.Facts(); });
        if (facts.build == platform::WindowsXpBuild) return true;
        Complain("Quillmore ist nur für Windows XP (Build 2600) gemacht; hier läuft " + facts.name +
                 " (Build " + std::to_string(facts.build) + "). Mit /raw läuft es trotzdem.");
        return false;
    }

    int State() {
        OptionsWindow window(machine_);
        window.Read();
        Tell(window);
        Refusals refusals;
        around_.Out(StateList(window, wide_, arguments_.csv, refusals));
        Tell(refusals);
        return Fine;
    }

    int Profile() {
        OptionsWindow window(machine_);
        window.Read();
        Tell(window);
        std::vector<ProfileLine> lines;
        for (const Setting& setting : Settings()) {
            const std::string shown = window.Shown(setting.control);
            // Without its number a control says nothing; elsewhere it would be wrong.
            const bool isOff = shown.empty() && OptionsWindow::WantsNumber(setting.control);
            lines.push_back({std::string(setting.page), std::string(setting.control), shown, 0,
                             window.Caption(setting.control), isOff});
        }
        file_ = arguments_.file;
        around_.WriteNewFile(file_, WriteProfile(lines));
        return Fine;
    }

    int Plan() {
        const Changes changes = Planned();
        around_.Out(ListToDo(changes));
        if (!arguments_.regFile.empty()) {
            file_ = arguments_.regFile;
            around_.WriteNewFile(file_, regfile::Write(AsRegistrationFile(changes)));
        }
        return changes.empty() ? NothingToDo() : Differs;
    }

    int Apply() {
        const Changes changes = Planned();
        if (changes.empty()) {
            if (!arguments_.backupFile.empty()) WriteBackup(arguments_.backupFile);
            return NothingToDo();
        }
        if (!Agreed(changes, "Einstellungen übernehmen? (j/n)")) return RefusedByUser;
        if (!arguments_.backupFile.empty() && !WriteBackup(arguments_.backupFile)) {
            Complain("Ohne vollständige Sicherung wird nichts geändert.");
            return NotAll;
        }
        Execute(changes);
        return Fine;
    }

    int Restore() {
        file_ = arguments_.file;
        const std::string bytes = around_.ReadFile(file_);
        Refusals refusals;
        Changes changes;
        std::vector<std::string> staying;
        try {
            changes = ToRestore(regfile::Read(bytes), wide_, refusals, staying);
        } catch (const regfile::Slip& slip) {
            throw BadInput(slip.reason, slip.line);
        }
        Tell(refusals);
        for (const std::string& place : staying) {
            Complain(place + " bleibt: Das ist nicht von Quillmore.");
        }
        if (changes.empty()) return NothingToDo();
        if (!Agreed(changes, "Einstellungen zurückholen? (j/n)")) return RefusedByUser;
        Execute(changes);
        return Fine;
    }

    int NothingToDo() {
        around_.Out("Nichts zu tun.\n");
        return Fine;
    }

    // What Apply would write from the state as it is read, with the profile and the presets over
    // it.
    Changes Planned() {
        std::vector<Wish> wishes;
        if (!arguments_.file.empty()) wishes = Wishes();
        OptionsWindow window(machine_);
        window.Read();
        for (const Wish& wish : wishes) {
            try {
                window.Set(Settings()[wish.setting].control, wish.value);
            } catch (const BadInput& input) {
                throw BadInput(input.reason, wish.line);
            }
        }
        for (const std::string& preset : arguments_.presets) window.UsePreset(preset);
        Changes changes = window.Write();
        Tell(window);
        Refusals refusals;
        ReadBefore(changes, wide_, refusals);
        Tell(refusals);
        return changes;
    }

    std::vector<Wish> Wishes() {
        file_ = arguments_.file;
        std::vector<Wish> wishes;
        for (const ProfileLine& line : ReadProfile(around_.ReadFile(file_))) {
            wishes.push_back({SettingOf(line), line.value, line.line});
        }
        std::sort(wishes.begin(), wishes.end(),
                  [](const Wish& left, const Wish& right) { return left.setting < right.setting; });
        return wishes;
    }

    static std::size_t SettingOf(const ProfileLine& line) {
        const std::string page = runtime::ToLower(line.page);
        bool isPage = false;
        for (std::size_t i = 0; i < Settings().size(); ++i) {
            if (runtime::ToLower(Settings()[i].page) != page) continue;
            isPage = true;
            if (runtime::EqualsIgnoringCase(Settings()[i].control, line.control)) return i;
        }
        if (!isPage) throw BadInput("es gibt keine Seite " + line.page, line.line);
        throw BadInput("die Seite " + line.page + " hat keine Einstellung " + line.control,
                       line.line);
    }

    // Whether it is complete and on the disk.
    bool WriteBackup(const std::string& path) {
        Refusals refusals;
        const std::vector<regfile::Key> kept = Backup(wide_, refusals);
        Tell(refusals);
        if (arguments_.verb == Verb::Apply && !refusals.empty()) return false;
        file_ = path;
        around_.WriteNewFile(path, regfile::Write(kept));
        return true;
    }

    // Where nobody sees a question none is put, but the answer is still read.
    bool Agreed(const Changes& changes, const std::string& question) {
        if (arguments_.yes) return true;
        if (around_.OutputIsSeen()) {
            around_.Out(ListToDo(changes) + question + " ");
        }
        const auto answer = around_.ReadLine();
        if (answer == "j") return true;
        around_.Out(around_.OutputIsSeen() ? "Nichts geändert.\n"
                                           : "Nichts geändert. Ohne Frage geht es mit /yes.\n");
        return false;
    }

    void Execute(const Changes& changes) {
        Refusals refusals;
        std::size_t count = 0;
        CarryOut(changes, wide_, refusals, [&](const Change& change) {
            around_.Out(Done(change) + "\n");
            ++count;
        });
        Tell(refusals);
        around_.Out(std::to_string(count) + " von " + std::to_string(changes.size()) +
                    " Änderungen ausgeführt.\n");
    }

    void Tell(const OptionsWindow& window) {
        Tell(window.Refused());
        for (const std::string& complaint : window.Complaints()) Complain(complaint);
        failed_ |= window.Failed();
    }

    void Tell(const Refusals& refusals) {
        for (const Refusal& refusal : refusals) {
            Complain(refusal.place + ": " + around_.SystemText(refusal.reason) + " (" +
                     std::to_string(refusal.reason) + ")");
        }
        failed_ |= !refusals.empty();
    }

    // On one line, whatever it says.
    void Complain(std::string text) {
        std::replace(text.begin(), text.end(), '\n', ' ');
        std::erase(text, '\r');
        around_.Err(text + "\n");
    }

    const platform::Machine& machine_;
    WideRegistry& wide_;
    Surroundings& around_;
    Arguments arguments_;
    // What is being read or written.
    std::string file_;
    bool failed_ = false;
};

}  // namespace

int Run(const std::vector<std::string>& arguments, const platform::Machine& machine,
        platform::WideRegistry& wide, Surroundings& around) {
    return Runner(machine, wide, around).Run(arguments);
}

}  // namespace cmd
