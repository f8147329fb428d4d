#pragma once

#include <doctest/doctest.h>

#include <map>

#include "controls/chameleonbutton.h"
#include "dialogs/frmvirtualdrive.h"
#include "platform/simulated/machine.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/listview.h"

namespace dialogs_test {

using namespace std::string_literals;
using platform::simulated::ShownMessage;
using toolkit::ListView;
using Lines = std::vector<std::string>;
using Run = platform::simulated::Processes::Run;

inline constexpr char Output[] = "C:\\tmpout.txt";
inline constexpr char List[] = "command.com /csubst > tmpout.txt";
inline constexpr char Impossible[] = "Virtuelles Laufwerk kann nich erstellt werden";
inline constexpr char DeleteQuestion[] = "Virtuelles Laufwerk löschen";
inline constexpr char RunKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

// A machine on which `subst` works: the drives that it has made are there and told.
struct Drives {
    platform::simulated::Machine machine;
    dialogs::frmVirtualDrive form{machine.services};
    ListView& list = form.Find<ListView>("lstDrives");
    toolkit::ComboBox& letters = form.Find<toolkit::ComboBox>("cbodrives");
    toolkit::TextBox& path = form.Find<toolkit::TextBox>("txtPathName");
    toolkit::CheckBox& restore = form.Find<toolkit::CheckBox>("chkrestore");
    std::map<std::string, std::string> made;
    // Of the commands that make or remove a drive.
    std::uint32_t exitCode = 0;

    Drives() {
        machine.disk.MakeFolder("C:\\Programme\\Quillmore");
        machine.processes.whenStarted = [this](const std::string& line) { return Subst(line); };
    }

    Run Subst(const std::string& line) {
        constexpr std::string_view start = "command.com /csubst ";
        REQUIRE(line.starts_with(start));
        CHECK(machine.folders.current == "C:\\");
        const std::string rest = line.substr(start.size());
        const std::string drive = rest.substr(0, 2);
        if (rest == "> tmpout.txt") {
            CHECK(machine.forms.ScreenPointer() == toolkit::Hourglass);
            std::string output;
            for (const auto& [letter, folder] : made) {
                output += letter + "\\: => " + folder + "\r\n";
            }
            machine.files.Put(Output, output);
            return {0, 3};
        }
        if (exitCode != 0) {
            return {exitCode, 3};
        } else if (rest.ends_with(" /d")) {
            made.erase(drive);
        } else {
            made[drive] = rest.substr(3);
        }
        ShowMade();
        return {exitCode, 3};
    }
    void ShowMade() {
        machine.systemInformation.drives.resize(3);
        for (const auto& each : made) {
            machine.systemInformation.drives.push_back(
                {each.first + '\\', platform::DriveKind::Fixed});
            machine.systemInformation.volumes[each.first + '\\'] = {"NTFS", 40007729152,
                                                                    12884901888, "SYSTEM"};
        }
    }
    void Make(const std::string& drive, const std::string& folder) {
        made[drive] = folder;
        ShowMade();
    }
    // What `subst` is to print, whatever drives there are.
    void Print(const std::string& output) {
        machine.processes.whenStarted = [this, output](const std::string&) {
            machine.files.Put(Output, output);
            return Run{};
        };
    }
    void Press(const char* name) { form.Find<controls::chameleonButton>(name).Press(); }
    bool Enabled(const char* name) const {
        return form.Find<controls::chameleonButton>(name).Enabled();
    }
    // As the user does, who gets both buttons by it.
    void Select(int row) {
        list.SetSelected(row, true);
        list.Click();
    }
    void Browse(const std::string& folder) {
        machine.shell.WhenBrowsing([folder](platform::simulated::FolderDialog& dialog) {
            if (!folder.empty()) dialog.Select(folder);
            return !folder.empty();
        });
        Press("cmdbroswe");
    }
    Lines Row(int row) const {
        Lines texts;
        for (int column = 0; column < 7; ++column) texts.push_back(list.Text(row, column));
        return texts;
    }
    // Command lines since the last look.
    Lines Started() {
        Lines lines;
        for (const auto& each : machine.processes.launched) {
            CHECK(each.windowStyle == 0);
            lines.push_back(each.commandLine);
        }
        machine.processes.launched.clear();
        machine.processes.runs.clear();
        return lines;
    }
    std::map<std::string, std::string> Store() const { return machine.settingsStore.All(); }
    ShownMessage LastBox() const {
        REQUIRE_FALSE(machine.messages.Shown().empty());
        return machine.messages.Shown().back();
    }
};

}  // namespace dialogs_test
