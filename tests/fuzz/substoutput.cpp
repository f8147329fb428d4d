// What the command `subst` prints, and what the dialog does with it; and what it has stored.
#include "dialogs/substoutput.h"

#include "controls/chameleonbutton.h"
#include "dialogs/frmvirtualdrive.h"
#include "fuzz/target.h"
#include "platform/simulated/machine.h"
#include "runtime/encoding.h"
#include "runtime/number.h"
#include "runtime/text.h"
#include "toolkit/controls.h"
#include "toolkit/listview.h"

namespace fuzz {
namespace {

constexpr char PrintedFile[] = "C:\\tmpout.txt";
constexpr std::string_view Command = "command.com /csubst ";
constexpr std::string_view Listing = "> tmpout.txt";

struct ListedDrive {
    std::string drive;
    std::string path;
};

// Letter by letter, other than the program does it.
std::vector<ListedDrive> DrivesIn(std::string_view printed) {
    std::vector<ListedDrive> drives;
    ListedDrive last;
    std::string item;
    const auto end = [&] {
        const std::size_t arrow = item.find("=>");
        const std::string before = item.substr(0, arrow);
        if (!item.empty()) last.drive = runtime::Left(before, 2);
        if (arrow != std::string::npos) {
            const std::string behind = item.substr(arrow + 2);
            last.path = runtime::Trim(behind.substr(0, behind.find("=>")));
        }
        drives.push_back(last);
        item.clear();
    };
    bool isOpen = false;
    for (std::size_t i = 0; i < printed.size(); ++i) {
        const char c = printed[i];
        isOpen = c != ',' && c != '\r' && c != '\n';
        if (isOpen) {
            item += runtime::FromWestern(printed.substr(i, 1));
            continue;
        }
        end();
        if (c == '\r' && i + 1 < printed.size() && printed[i + 1] == '\n') ++i;
    }
    if (isOpen) end();
    return drives;
}

struct PrintedDrives {
    platform::simulated::Machine machine;
    dialogs::frmVirtualDrive form{machine.services};
    toolkit::ListView& list = form.Find<toolkit::ListView>("lstDrives");
    std::string printed;
    std::uint32_t exitCode = 0;

    PrintedDrives() {
        machine.journal.Record(false);
        machine.disk.MakeFolder("C:\\Programme\\Quillmore");
        machine.processes.whenStarted = [this](const std::string& line) {
            Require(line.starts_with(Command), "another command");
            if (line.substr(Command.size()) == Listing) machine.files.Put(PrintedFile, printed);
            return platform::simulated::Processes::Run{exitCode, 1};
        };
    }

    // Those other than the one that lists.
    std::vector<std::string> Commands() const {
        std::vector<std::string> commands;
        for (const auto& each : machine.processes.launched) {
            Require(each.windowStyle == 0, "a window that is seen");
            const std::string rest = each.commandLine.substr(Command.size());
            if (rest != Listing) commands.push_back(rest);
        }
        return commands;
    }
};

void CheckParser(std::string_view printed, const std::vector<ListedDrive>& expected) {
    const platform::simulated::Locale locale;
    dialogs::SubstOutput output(printed, locale);
    for (const ListedDrive& drive : expected) {
        Require(output.Next(), "too few drives");
        RequireSame(output.Drive(), drive.drive, "the drive");
        RequireSame(output.Path(), drive.path, "its path");
        Require(runtime::Length(output.Drive()) <= 2, "more than a drive");
    }
    Require(!output.Next() && !output.Next(), "too many drives");
}

void CheckRestored(PrintedDrives& drives, Input& bytes) {
    auto& store = drives.machine.settingsStore;
    const std::string count(bytes.Piece());
    store.Save("dmVDriveC", "Config", "Count", count);
    for (int number = 1; number <= 4; ++number) {
        store.Save("dmVDriveC", "Config", "Drives" + std::to_string(number),
                   runtime::FromWestern(bytes.Piece()));
    }
    const auto stored = store.All();
    drives.form.Show();
    double wanted = 0;
    const int failure = FailureOf([&] { wanted = runtime::LeadingNumber(count); });
    // More only take longer.
    if (wanted > 10) return;
    drives.machine.processes.launched.clear();
    drives.machine.processes.runs.clear();
    Require(FailureOf([&] { drives.form.RestoreDrives(); }) == failure, "another failure");
    const auto commands = drives.Commands();
    Require(static_cast<double>(commands.size()) <= std::max(wanted, 0.0), "too many commands");
    Require(store.All() == stored, "the store is written");
}

}  // namespace

FUZZ_TARGET(substoutput) {
    Input bytes(input);
    const std::size_t mode = bytes.Below(8);
    PrintedDrives drives;
    if (mode == 7) return CheckRestored(drives, bytes);
    const std::size_t row = bytes.Byte();
    drives.printed = bytes.Rest();
    const auto expected = DrivesIn(drives.printed);
    CheckParser(drives.printed, expected);

    const auto disk = drives.machine.disk.Snapshot();
    drives.form.Show();
    Require(drives.list.Count() == static_cast<int>(expected.size()), "other rows");
    for (int i = 0; i < drives.list.Count(); ++i) {
        const ListedDrive& drive = expected[static_cast<std::size_t>(i)];
        RequireSame(drives.list.Text(i, 0), drive.drive, "a row's drive");
        RequireSame(drives.list.Text(i, 2), drives.machine.folders.LongPath(drive.path),
                    "a row's path");
    }
    Require(drives.Commands().empty(), "listing does more");
    std::vector<std::string> wanted;
    if (mode % 2 != 0 && row < expected.size()) {
        drives.exitCode = mode == 3 ? 1 : 0;
        drives.list.SetSelected(static_cast<int>(row), true);
        drives.list.Click();
        drives.machine.messages.AnswerAll(
            "Virtuelles Laufwerk löschen",
            mode == 5 ? platform::message::No : platform::message::Yes);
        drives.form.Find<controls::chameleonButton>("cmddelete").Press();
        if (mode != 5) wanted.push_back(expected[row].drive + " /d");
    }
    Require(drives.Commands() == wanted, "another drive is removed, or none");
    drives.form.Unload();
    Require(drives.machine.disk.Snapshot() == disk, "a file is left, or gone");
    Require(drives.machine.registry.Dump().empty() && drives.machine.settingsStore.All().empty(),
            "something else is written");
}

}  // namespace fuzz
