#include "endtoend/everyoptionrun.h"

#include <algorithm>
#include <set>

#include "endtoend/optiontable.h"
#include "endtoend/optiontablenumbers.h"
#include "endtoend/optiontablewords.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

constexpr char GraphicsDriverBox[] = "chkEnableAGP4x";
constexpr char PreviewBox[] = "chkSHMediaDLL";

// What the controls must show behind the start. The store, not the registry, tells of the preview
// library, and in the opposite sense.
PassOutcome PredictStart(const PredictedRegistry& registry, const Workplace& workplace,
                         ControlStates& states) {
    states = DesignStates();
    const PassOutcome outcome = PredictRead(registry, states);
    states[PreviewBox] = workplace.Stored("VideoPrv", "Regged") == "true" ? "0" : "1";
    return outcome;
}

// What the fields make of texts that come from outside: cut to what they take.
ControlStates TextsAsShown(ControlStates states) {
    for (auto& [name, state] : states) {
        const std::size_t limit = LengthLimitOf(name);
        if (limit) state = FirstCharacters(state, limit);
    }
    return states;
}

// The program's own settings; what Wine remembers of its display and its services.
bool IsNoOption(const std::string& difference) {
    static const std::vector<std::string> others = {
        "hkcu\\software\\vb and vba program settings",
        "hkcu\\software\\wine\\",
        "hklm\\system\\currentcontrolset\\control\\class\\{4d36e968",
        "hklm\\system\\currentcontrolset\\control\\class\\{4d36e96e",
        "hklm\\system\\currentcontrolset\\enum\\display\\",
        "hklm\\system\\currentcontrolset\\control\\servicecurrent|"};
    return difference.find("|driverdatedata: ") != std::string::npos ||
           std::any_of(others.begin(), others.end(),
                       [&](const std::string& other) { return difference.starts_with(other); });
}

// The keys of all options and those above them, as a snapshot writes them.
const std::set<std::string>& KeysOnTheWay() {
    static const std::set<std::string> keys = [] {
        std::set<std::string> found;
        for (const Fact& fact : Facts()) {
            std::string path = KeyPath(fact.place);
            for (; path.find('\\') != std::string::npos; path.erase(path.find_last_of('\\'))) {
                found.insert(path);
            }
        }
        return found;
    }();
    return keys;
}

void ReadKey(const std::string& path, RegistryState& state) {
    const HKEY root = RootOf(path.starts_with("hkcu") ? "HKCU" : "HKLM");
    platform::win32::RegistryKey key;
    RegOpenKeyExW(root, ToWide(path.substr(5)).c_str(), 0, KEY_READ, key.Out());
    if (!key) return;
    state[path] = std::nullopt;
    wchar_t name[1024];
    DWORD size = 1024;
    for (DWORD at = 0;
         !RegEnumKeyExW(key.Get(), at, name, &size, nullptr, nullptr, nullptr, nullptr);
         ++at, size = 1024) {
        state[KeyPath({path.substr(0, 4), path.substr(5) + '\\' + FromWide({name, size}), ""})] =
            std::nullopt;
    }
    static std::string bytes(4 * 65536, '\0');
    DWORD type = 0;
    auto count = static_cast<DWORD>(bytes.size());
    size = 1024;
    for (DWORD at = 0; !RegEnumValueW(key.Get(), at, name, &size, nullptr, &type,
                                      reinterpret_cast<BYTE*>(bytes.data()), &count);
         ++at, size = 1024, count = static_cast<DWORD>(bytes.size())) {
        state[ValuePath({path.substr(0, 4), path.substr(5), FromWide({name, size})})] =
            RegistryValue{type, bytes.substr(0, count)};
    }
}

}  // namespace

void SeeDesktop() {
    static const bool seen = [] {
        const Workplace workplace;
        const OpenProgram program(workplace);
        return true;
    }();
    (void)seen;
}

RegistryState SnapshotOfOptions() {
    RegistryState state;
    for (const std::string& path : KeysOnTheWay()) ReadKey(path, state);
    return state;
}

std::vector<std::string> OptionDifferences(const RegistryState& before,
                                           const RegistryState& after) {
    std::vector<std::string> lines = Differences(before, after);
    std::erase_if(lines, IsNoOption);
    return lines;
}

OptionRun::OptionRun(const Workplace& workplace, Look look)
    : workplace_(workplace), look_(look), before_(look()) {
    const PredictedRegistry registry(before_);
    const int failure = PredictStart(registry, workplace_, states_).failure;
    program_ = std::make_unique<Program>(workplace_.Executable());
    if (failure) AnswerBoxes(*program_, {FailureBox(failure, "ReadRegistry")});
    program_->Wait("frmMain");
    Until("the start to end", [&] { return program_->Responds("frmMain"); });
    controls_ = std::make_unique<OptionControls>(*program_);
    CompareControls("at the start: ");
    // A pass that failed never came to look for the driver.
    const bool usable = failure || registry.HasKey({"HKLM", GraphicsDriverKey, ""});
    if (Enabled(GraphicsDriverBox) != usable) {
        wrong_.push_back(std::string(GraphicsDriverBox) + (usable ? " is" : " is not") +
                         " disabled");
    }
}

void OptionRun::Set(ControlStates wanted) {
    if (!Enabled(GraphicsDriverBox)) wanted[GraphicsDriverBox] = states_[GraphicsDriverBox];
    for (auto& [name, state] : wanted) {
        if (name.starts_with("lbl")) state = states_[name];
    }
    wanted["txtProductId"] = states_["txtProductId"];
    controls_->Set(wanted);
    states_ = TextsAsShown(wanted);
    CompareControls("when set: ");
}

void OptionRun::Apply(bool wrongPassword) {
    PredictedRegistry registry(before_);
    outcome_ = PredictWrite(states_, registry);
    const std::string& password = states_.at("txtALPassword");
    const bool refused = wrongPassword && states_.at("chkAutoLogin") == "1" && !password.empty();
    ApplyOptions(*program_, states_, refused ? password + '!' : password, outcome_);
    began_ = !refused;
    if (refused) {
        CompareRegistry(PredictedRegistry(before_));
        return;
    }
    CompareRegistry(registry);
    CompareControls("behind Apply: ");
    CompareLibrary(outcome_.failure == 0);
    before_ = registry.State();
}

void OptionRun::CompareControls(const std::string& when) {
    for (const std::string& line : WrongStates(states_, controls_->Shown())) {
        wrong_.push_back(when + line);
    }
}

void OptionRun::CompareRegistry(const PredictedRegistry& expected) {
    for (const std::string& line : OptionDifferences(expected.State(), look_())) {
        wrong_.push_back("registry (expected -> found): " + line);
    }
}

// The library is registered or not by the last step of a pass.
void OptionRun::CompareLibrary(bool passed) {
    if (!passed) return;
    const std::string expected = states_.at(PreviewBox) == "1" ? "false" : "true";
    const std::string stored = workplace_.Stored("VideoPrv", "Regged");
    if (stored != expected) wrong_.push_back("Regged is " + stored);
}

}  // namespace endtoend
