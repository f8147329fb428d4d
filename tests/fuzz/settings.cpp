// Every setting that a start reads from the store, as any text.
#include <cmath>
#include <iterator>
#include <map>

#include "app/program.h"
#include "fuzz/target.h"
#include "runtime/encoding.h"

namespace fuzz {
namespace {

struct SettingPlace {
    const char* section;
    const char* key;
};

constexpr SettingPlace SettingPlaces[] = {
    {"Options", "Accepted"},
    {"Options", "State"},
    {"Options", "Left"},
    {"Options", "Top"},
    {"Options", "Tab"},
    {"Options", "SyncAtom"},
    {"Options", "SyncServer"},
    {"Options", "ServerName"},
    {"Options", "TrayIcon"},
    {"Options", "MinimizeAfterStart"},
    {"Options", "RebootQuestion"},
    {"Options", "ForceReboot"},
    {"Options", "AutoStart"},
    {"Options", "Width"},
    {"WinComponents", "Show"},
    {"Desktop", "TransparentIcons"},
    {"TaskBar", "Luminance"},
    {"SecureWindows", "Regged"},
    {"VideoPrv", "Regged"},
};

using StoredSettings = std::map<std::string, std::string>;

constexpr char ComponentsFile[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

// The whole program on a machine with these settings.
struct StartedProgram : app_test::Program {
    bool isRefused = false;
    bool hasStarted = false;

    explicit StartedProgram(const StoredSettings& settings) {
        machine.journal.Record(false);
        machine.files.Put(ComponentsFile, "[Components]\r\nspiele=a,b,HIDE,7\r\n");
        for (const auto& [place, text] : settings) {
            const std::size_t bar = place.find('|');
            machine.settingsStore.Put(place.substr(0, bar), place.substr(bar + 1), text);
        }
        machine.forms.WhenModal("frmFirstInfo", [this](toolkit::Form& warning) {
            isRefused = true;
            warning.Unload();
        });
        hasStarted = Start();
    }

    // What is to be seen.
    std::string Looks() {
        std::string text = std::to_string(static_cast<int>(form->State())) + ' ' +
                           std::to_string(form->Place().left) + ' ' +
                           std::to_string(form->Place().top) + ' ' +
                           std::to_string(form->Visible()) + std::to_string(form->InTaskbar()) +
                           std::to_string(machine.tray.shown) + '\n';
        for (const auto& control : form->Controls()) {
            text += control->Name() + '=' + control->Caption();
            if (auto* box = dynamic_cast<toolkit::CheckBox*>(control.get())) {
                text += std::to_string(box->Value());
            } else if (auto* option = dynamic_cast<toolkit::OptionButton*>(control.get())) {
                text += std::to_string(option->Value());
            } else if (auto* edit = dynamic_cast<toolkit::TextBox*>(control.get())) {
                text += edit->Text();
            } else if (auto* tabs = dynamic_cast<toolkit::TabStrip*>(control.get())) {
                text += std::to_string(tabs->Tab());
            }
            text += '\n';
        }
        return text;
    }
};

// All but the list of components, whose box writes it.
std::string FilesBeside(const platform::simulated::Machine& machine) {
    std::string text;
    for (const auto& [path, content] : machine.disk.Snapshot()) {
        if (!path.ends_with("sysoc.inf")) text += path + ' ' + content + '\n';
    }
    return text;
}

void CheckPlace(StartedProgram& program) {
    const auto state = static_cast<int>(program.form->State());
    Require(state >= 0 && state <= 2, "a state that is none");
    const int tab = program.form->Find<toolkit::TabStrip>("SSTab1").Tab();
    Require(tab >= 0 && tab <= 7, "a page that is none");
    const toolkit::Bounds place = program.form->Place();
    Require(std::isfinite(place.left) && std::isfinite(place.top), "no place");
    Require(place.left >= 0 && place.top >= 0, "left of the screen, or above");
}

}  // namespace

FUZZ_TARGET(settings) {
    Input bytes(input);
    const bool again = bytes.Flag();
    StoredSettings settings{{"Options|Accepted", "Yes"}};
    while (!bytes.AtEnd()) {
        const SettingPlace& place = SettingPlaces[bytes.Below(std::size(SettingPlaces))];
        settings[std::string(place.section) + '|' + place.key] =
            runtime::FromWestern(bytes.Piece());
    }

    StartedProgram program(settings);
    const bool accepted = settings["Options|Accepted"] == "Yes";
    Require(program.hasStarted == accepted && program.isRefused == !accepted, "the warning");
    const auto& boxes = program.machine.messages.Shown();
    Require(boxes.empty(), "a message");
    Require(program.machine.registry.Dump().empty(), "a start writes to the registry");
    if (!accepted) return Require(program.machine.processes.launched.empty(), "something starts");
    CheckPlace(program);
    for (const auto& each : program.machine.processes.launched) {
        Require(each.commandLine.starts_with("regsvr32.exe %windir%\\system32\\upnp.dll /"),
                "something is started");
    }
    static const std::string files = FilesBeside(StartedProgram({}).machine);
    RequireSame(FilesBeside(program.machine), files, "the files");
    const std::string looks = program.Looks();
    if (again) return RequireSame(StartedProgram(settings).Looks(), looks, "the same start again");

    // What closing leaves in the store is what the next start takes up.
    Require(program.Close(), "the window does not close");
    StoredSettings left;
    for (const SettingPlace& place : SettingPlaces) {
        const auto text = program.machine.settingsStore.Stored(place.section, place.key);
        if (text) left[std::string(place.section) + '|' + place.key] = *text;
    }
    StartedProgram next(left);
    Require(next.hasStarted, "the next start fails");
    CheckPlace(next);
    Require(next.form->Find<toolkit::TabStrip>("SSTab1").Tab() ==
                program.form->Find<toolkit::TabStrip>("SSTab1").Tab(),
            "another page");
}

}  // namespace fuzz
