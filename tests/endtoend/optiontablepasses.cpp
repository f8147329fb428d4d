#include "endtoend/optiontablepasses.h"

#include <windows.h>

#include <algorithm>
#include <cctype>

#include "endtoend/optiontablenumbers.h"
#include "endtoend/optiontablewords.h"
#include "endtoend/waiting.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

std::string Lower(const std::string& text) {
    std::wstring wide = platform::win32::ToWide(text);
    CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    return platform::win32::FromWide(wide);
}

std::string FoldLetters(std::string text, int (*fold)(int)) {
    for (char& letter : text) {
        if (static_cast<unsigned char>(letter) < 128) letter = static_cast<char>(fold(letter));
    }
    return text;
}

bool Answers(const ReadWords& read, const std::optional<RegistryValue>& stored) {
    using enum ReadWords::Asked;
    if (read.alsoPresent && !stored) return false;
    const std::string text = TextForm(stored);
    if (read.alsoEmpty && text.empty()) return true;
    const std::optional<double> number = NumberIn(text);
    switch (read.asked) {
        case Present:
            return stored.has_value();
        case NotEmpty:
            return !text.empty();
        case EqualsText:
            return text == read.text;
        case LowerEqualsText:
            return FoldLetters(text, std::tolower) == read.text;
        case UpperEqualsText:
            return FoldLetters(text, std::toupper) == read.text;
        case EqualsNumber:
            return number && *number == read.number;
        case AtLeastNumber:
            return !number || *number >= read.number;
        default:
            throw Failed("no question");
    }
}

// The whole read pass; each control in turn.
class ReadPass {
  public:
    ReadPass(const PredictedRegistry& registry, ControlStates& controls)
        : registry_(registry), controls_(controls) {}

    int Run() {
        for (const std::string& name : ReadOrder()) {
            if (name == "chkWinLogOn") {
                // The title alone decides.
                Check(name, !controls_.at("txtWinLogOnC").empty());
            } else if (name.starts_with("chk")) {
                ReadCheckBox(name);
            } else if (const int failure = ReadField(name)) {
                return failure;
            }
        }
        return 0;
    }

  private:
    void Check(const std::string& name, bool on) { controls_.at(name) = on ? "1" : "0"; }

    void ReadCheckBox(const std::string& name) {
        bool asked = false;
        bool on = true;
        for (const Fact& fact : FactsOf(name)) {
            if (fact.read.asked == ReadWords::Asked::Nothing) continue;
            asked = true;
            on = on && Answers(fact.read, registry_.Value(fact.place)) != fact.read.offWhen;
            TakeAlong(fact, on);
            if (!on && !fact.read.elseClears.empty()) {
                Check(fact.read.elseClears, false);
                return;
            }
        }
        if (!asked) throw Failed(name + " is never read");
        Check(name, on);
        for (const Fact& fact : Facts()) {
            if (fact.read.onlyWith == name) {
                controls_.at(fact.control) = on ? TextForm(registry_.Value(fact.place)) : "";
            }
        }
    }

    void TakeAlong(const Fact& fact, bool on) {
        if (fact.read.alsoInto.empty()) return;
        controls_.at(fact.read.alsoInto) = on ? TextForm(registry_.Value(fact.place)) : "";
    }

    int ReadField(const std::string& name) {
        for (const Fact& fact : FactsOf(name)) {
            if (fact.read.asked != ReadWords::Asked::TheText) continue;
            controls_.at(name) =
                FirstCharacters(TextForm(registry_.Value(fact.place)), LengthLimitOf(name));
        }
        return name == "txtStartmenu" ? FollowWithSlider(controls_.at(name)) : 0;
    }

    // The slider beside the box follows every number; as far as it moves, the box follows the
    // slider in turn and loses blanks and fractions. Some numbers it cannot be handed at all.
    static int FollowWithSlider(std::string& delay) {
        constexpr std::int32_t least = 1;
        constexpr std::int32_t mostAndFirst = 400;
        if (!NumberIn(delay)) return 0;
        const Whole whole = WholeNumberIn(delay);
        if (whole.failure) return whole.failure;
        if (whole.number >= least && whole.number < mostAndFirst) {
            delay = std::to_string(whole.number);
        }
        return 0;
    }

    const PredictedRegistry& registry_;
    ControlStates& controls_;
};

// The whole write pass; each control in turn.
class WritePass {
  public:
    WritePass(const ControlStates& controls, PredictedRegistry& registry)
        : controls_(controls), registry_(registry) {}

    PassOutcome Run() {
        for (const std::string& name : WriteOrder()) {
            // It only decides what the two boxes beside it write.
            if (name == "chkWinLogOn") continue;
            WriteControl(name);
            if (outcome_.failure) break;
        }
        return outcome_;
    }

  private:
    bool IsOn(const std::string& checkBox) const { return controls_.at(checkBox) == "1"; }

    static bool HasTurn(const std::string& name) {
        return std::find(WriteOrder().begin(), WriteOrder().end(), name) != WriteOrder().end();
    }

    const WriteWords& SideOf(const Fact& fact) const {
        const std::string& decides = fact.IsCheckBox() ? fact.control : fact.on.decidedBy;
        return decides.empty() || IsOn(decides) ? fact.on : fact.off;
    }

    // All guards of a control are asked before anything of it is written.
    void WriteControl(const std::string& name) {
        std::vector<std::pair<ValuePlace, WriteWords>> steps;
        bool any = false;
        for (const Fact& fact : Facts()) {
            const bool along = fact.on.decidedBy == name && !HasTurn(fact.control);
            if (fact.control != name && !along) continue;
            any = true;
            const WriteWords& side = SideOf(fact);
            if (Allowed(fact, side)) steps.emplace_back(fact.place, side);
        }
        if (!any) throw Failed(name + " is never written");
        for (const auto& [place, side] : steps) {
            if (!outcome_.failure) WriteStep(place, side);
        }
    }

    bool Allowed(const Fact& fact, const WriteWords& side) const {
        using enum WriteWords::Guard;
        switch (side.guard) {
            case None:
                return true;
            case KeyPresent:
                return registry_.HasKey(fact.place);
            case KeyAbsent:
                return !registry_.HasKey(fact.place);
            case ValuePresent:
                return registry_.Value(fact.place).has_value();
            case OnlyThisKeyPresent:
                return registry_.HasKey(fact.place) && !AnyEarlierKeyOf(fact);
        }
        throw Failed("no such guard");
    }

    bool AnyEarlierKeyOf(const Fact& later) const {
        const std::vector<Fact> facts = FactsOf(later.control);
        return std::any_of(facts.begin(), facts.end(), [&](const Fact& fact) {
            return fact.on.guard == WriteWords::Guard::KeyPresent && registry_.HasKey(fact.place);
        });
    }

    void WriteStep(const ValuePlace& place, const WriteWords& side) {
        using enum WriteWords::Action;
        if (!side.numericControl.empty() && !NumberIn(controls_.at(side.numericControl))) {
            if (!side.complaint.empty()) outcome_.complaints.push_back(side.complaint);
            return;
        }
        switch (side.action) {
            case Nothing:
                return;
            case WriteWords::Action::Dword:
                registry_.Put(place, endtoend::Dword(static_cast<DWORD>(side.number)));
                return;
            case Text:
                registry_.Put(place, BareText(side.text));
                return;
            case WriteWords::Action::Binary:
                registry_.Put(place, endtoend::Binary(side.text));
                return;
            case TextOf:
                registry_.Put(place, BareText(ThroughCodePage(controls_.at(side.text))));
                return;
            case NumberOf:
                WriteNumber(place, controls_.at(side.text));
                return;
            case WriteWords::Action::DeleteValue:
                registry_.DeleteValue(place);
                return;
            case DeleteKey:
                registry_.DeleteKey(place);
                return;
        }
    }

    // A negative number fails when the key is made already.
    void WriteNumber(const ValuePlace& place, const std::string& text) {
        const Whole whole = WholeNumberIn(text);
        outcome_.failure = whole.failure;
        if (outcome_.failure) return;
        registry_.MakeKey(place);
        if (whole.number < 0) {
            outcome_.failure = 5;
        } else {
            registry_.Put(place, endtoend::Dword(static_cast<DWORD>(whole.number)));
        }
    }

    const ControlStates& controls_;
    PredictedRegistry& registry_;
    PassOutcome outcome_;
};

}  // namespace

ControlStates DesignStates() {
    ControlStates states;
    for (const Fact& fact : Facts()) states[fact.control] = fact.IsCheckBox() ? "0" : "";
    states["chkWinLogOn"] = "0";
    states["txtExtensions"] = "";
    return states;
}

std::size_t LengthLimitOf(const std::string& control) {
    static const std::map<std::string, std::size_t> limits = {
        {"txtWindowsVersion", 3}, {"txtOSBuild", 4}, {"txtTimeOut", 5}, {"txtIETitel", 255}};
    const auto found = limits.find(control);
    return found == limits.end() ? 0 : found->second;
}

// The classes are a branch of the machine's software, and a backslash at the end names no key more.
std::string KeyPath(const ValuePlace& place) {
    std::string path = place.root + '\\' + place.key;
    if (path.ends_with('\\')) path.pop_back();
    if (path.starts_with("HKCR\\")) path.replace(0, 5, "HKLM\\Software\\Classes\\");
    return Lower(path);
}

std::string ValuePath(const ValuePlace& place) {
    return KeyPath(place) + '|' + Lower(place.name);
}

bool PredictedRegistry::HasKey(const ValuePlace& place) const {
    return state_.contains(KeyPath(place));
}

std::optional<RegistryValue> PredictedRegistry::Value(const ValuePlace& place) const {
    const auto found = state_.find(ValuePath(place));
    return found == state_.end() ? std::nullopt : found->second;
}

void PredictedRegistry::Put(const ValuePlace& place, const RegistryValue& value) {
    MakeKey(place);
    state_[ValuePath(place)] = value;
}

void PredictedRegistry::MakeKey(const ValuePlace& place) {
    const std::string path = KeyPath(place);
    // A root itself is no key of the snapshot.
    std::size_t at = path.find('\\');
    while ((at = path.find('\\', at + 1)) != std::string::npos) {
        state_.try_emplace(path.substr(0, at), std::nullopt);
    }
    state_.try_emplace(path, std::nullopt);
}

void PredictedRegistry::DeleteValue(const ValuePlace& place) {
    state_.erase(ValuePath(place));
}

void PredictedRegistry::DeleteKey(const ValuePlace& place) {
    const std::string path = KeyPath(place);
    const auto below = state_.lower_bound(path + '\\');
    if (below != state_.end() && below->first.starts_with(path + '\\')) return;
    std::erase_if(state_, [&](const auto& entry) {
        return entry.first == path || entry.first.starts_with(path + '|');
    });
}

PassOutcome PredictRead(const PredictedRegistry& registry, ControlStates& controls) {
    PassOutcome outcome;
    outcome.failure = ReadPass(registry, controls).Run();
    return outcome;
}

PassOutcome PredictWrite(const ControlStates& controls, PredictedRegistry& registry) {
    return WritePass(controls, registry).Run();
}

}  // namespace endtoend
