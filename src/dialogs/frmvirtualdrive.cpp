#include "dialogs/frmvirtualdrive.h"

#include <algorithm>

#include "controls/chameleonbutton.h"
#include "dialogs/substcommands.h"
#include "dialogs/substoutput.h"
#include "dialogs/systemreport.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/menus.h"
#include "platform/messages.h"
#include "platform/program.h"
#include "platform/settingsstore.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "runtime/text.h"
#include "system/folderdialog.h"
#include "system/processwait.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "toolkit/listhelpers.h"
#include "toolkit/listview.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using runtime::Skip;
using toolkit::ListView;
namespace message = platform::message;

constexpr int DriveQuestion = message::YesNo + message::Question;

// The dialog's own settings, apart from the program's.
constexpr const char* StoreTitle = "dmVDriveC";
constexpr const char* StoreSection = "Config";

constexpr const char* RunKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* RunName = "VDriveC";
// Not the handle of a root, on purpose: the system refuses it, and so no start command is ever
// written or removed. The settings go into the store all the same.
constexpr platform::Registry::Key RunRoot = 2;

// What is counted in 16 bits ends there.
constexpr int MaximumCount = 32767;

constexpr const char* OutputName = "tmpout.txt";

// The column with the volume's name.
constexpr int VolumeColumn = 1;

// "NUMBER: TEXT".
std::string Described(const runtime::Failure& failure) {
    return runtime::ToText(failure.number) + ": " + failure.description;
}

}  // namespace

frmVirtualDrive::frmVirtualDrive(const platform::Machine& machine)
    : Form(machine.forms, "frmVirtualDrive", "Virtuelle Laufwerke verwalten", {}),
      machine_(machine),
      cbodrives_(Add<toolkit::ComboBox>("cbodrives",
                                        toolkit::ComboBoxStyle{.listOnly = true, .columns = 6})),
      txtPathName_(Add<toolkit::TextBox>("txtPathName",
                                         toolkit::TextBoxStyle{.readOnly = true, .columns = 48})),
      cmdbroswe_(Add<chameleonButton>("cmdbroswe", controls::Persisted{"TX=Durchsuchen ..."},
                                      machine.clock)),
      cmdcreate_(Add<chameleonButton>(
          "cmdcreate", controls::Persisted{"TX=Neues Laufwerk erstellen"}, machine.clock)),
      lstDrives_(Add<ListView>("lstDrives", toolkit::ListViewStyle{.columns = 90, .lines = 10})),
      cmddelete_(Add<chameleonButton>(
          "cmddelete", controls::Persisted{"TX=Entfernt das ausgewählte Laufwerk"}, machine.clock)),
      chkrestore_(Add<toolkit::CheckBox>("chkrestore",
                                         "Laufwerke beim Windows Neustart wieder herstellen")),
      cmdexit_(Add<chameleonButton>("cmdexit", controls::Persisted{"TX=Schließen"}, machine.clock)),
      mnuFile_{"mnuFile", {{"mnuDelete", "Laufwerk entfernen", [this] { DeleteDrive(); }}}} {
    for (const char* header :
         {"Laufwerk", "Name", "Physikalischer Pfad", "Größe", "Frei", "Belegt", "Dateisystem"}) {
        lstDrives_.AddColumn(header);
    }
    lstDrives_.onColumnClick = [this](int header) {
        toolkit::SortByHeader(lstDrives_, header, sortDescending_);
    };
    lstDrives_.onClick = [this] { EnableDelete(true); };
    lstDrives_.onRightButton = [this] { OpenMenu(); };
    lstDrives_.onKeyDown = [this](int virtualKey) {
        if (virtualKey == toolkit::key::Delete) DeleteDrive();
    };
    cmdbroswe_.onClick = [this] { BrowseFolder(); };
    cmdcreate_.onClick = [this] { CreateDrive(); };
    cmddelete_.onClick = [this] { DeleteDrive(); };
    chkrestore_.onClick = [this] { StoreDrives(); };
    cmdexit_.onClick = [this] { Exit(); };

    auto& lblDrive = Add<toolkit::Label>("lblDrive", "Laufwerk:");
    auto& lblPath = Add<toolkit::Label>("lblPath", "Verzeichnis:");
    sizeToContent = true;
    using namespace toolkit;
    SetLayout(Margin(Gap(Column({Gap(Column({Row({Leaf(lblDrive), Leaf(cbodrives_), Leaf(lblPath),
                                                  Stretch(Leaf(txtPathName_)), Leaf(cmdbroswe_)}),
                                             Row({Filler(), Leaf(cmdcreate_)})}),
                                     8),
                                 Gap(Column({Leaf(lstDrives_),
                                             Row({Leaf(chkrestore_), Filler(), Leaf(cmddelete_)})}),
                                     8),
                                 Row({Filler(), Leaf(cmdexit_)})}),
                         16),
                     16));
}

void frmVirtualDrive::OnLoad() {
    const toolkit::ScreenHourglass hourglass{host_};
    ResetControls();
    // A stored number that is no state of the box leaves it off.
    Skip([&] {
        const auto stored = runtime::LeadingNumber(
            machine_.settingsStore.Get(StoreTitle, StoreSection, "Restore", ""));
        chkrestore_.SetValue(stored == 1 ? 1 : stored == 2 ? 2 : 0);
    });
    // Read and not used, on purpose: the switch that asks for the stored drives has no effect.
    [[maybe_unused]] const std::string commandLine =
        runtime::ToUpper(runtime::Trim(machine_.program.CommandLine()));
    const std::string directory = machine_.program.Directory();
    AppRoot_ = runtime::Left(machine_.folders.FullPath(runtime::Left(directory, 2)), 3);
    AppFolder_ = AddBackslash(directory);
    RefreshDrives();
}

// Nothing remains of an earlier time. The list goes first, so that the box finds no drives to
// store.
void frmVirtualDrive::ResetControls() {
    lstDrives_.Clear();
    lstDrives_.SetSorted(false);
    lstDrives_.SetSortKey(0);
    lstDrives_.SetSortOrder(ListView::Ascending);
    sortDescending_ = false;
    txtPathName_.SetText("");
    cmdcreate_.SetEnabled(false);
    EnableDelete(false);
    chkrestore_.SetEnabled(true);
    chkrestore_.SetValue(0);
}

bool frmVirtualDrive::OnKeyDown(int virtualKey) {
    if (virtualKey != toolkit::key::Escape) return false;
    Unload();
    return true;
}

void frmVirtualDrive::RefreshDrives() {
    const toolkit::ScreenHourglass hourglass{host_};
    ReadSubstList();
    FillFreeLetters(cbodrives_);
}

void frmVirtualDrive::FillFreeLetters(toolkit::ComboBox& combo) {
    combo.Clear();
    const auto drives = machine_.systemInformation.Drives();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const bool isTaken = std::any_of(drives.begin(), drives.end(), [&](const auto& drive) {
            return drive.root.front() == letter;
        });
        if (!isTaken) combo.AddItem(std::string(1, letter) + ':');
    }
    if (!combo.Items().empty()) combo.SetListIndex(0);
}

// Each statement that fails is passed over.
void frmVirtualDrive::ReadSubstList() {
    const int reading = ++readings_;
    lstDrives_.Clear();
    const std::string file = AppRoot_ + OutputName;
    const auto remove = [&] { machine_.files.Remove(file, false); };
    Skip([&] { machine_.folders.MakeCurrent(AppRoot_); });
    bool failed = false;
    Skip([&] { failed = !RunSubst(std::string("> ") + OutputName); });
    if (!failed) {
        const auto found = machine_.folders.Find(file);
        if (found && found->size == 0) {
            // No drives. The current directory stays and the columns are not fitted, on purpose.
            Skip(remove);
            return;
        }
        Skip([&] { AddRows(machine_.files.Read(file), reading); });
    }
    Skip(remove);
    Skip([&] { machine_.folders.MakeCurrent(AppFolder_); });
    toolkit::AdjustColumnWidth(lstDrives_, true, 1);
}

// A later reading has the list for itself.
void frmVirtualDrive::AddRows(const std::string& output, int reading) {
    SubstOutput drives(output, machine_.locale);
    for (int number = 0; number < MaximumCount && drives.Next();) {
        if (reading != readings_) return;
        AddRow(++number, drives.Drive(), drives.Path());
        machine_.forms.DoEvents();
    }
}

void frmVirtualDrive::AddRow(int number, const std::string& drive, const std::string& path) {
    const platform::Volume volume = machine_.systemInformation.VolumeOn(drive + '\\');
    const auto signs = machine_.locale.Signs();
    const auto size = [&](std::optional<std::uint64_t> bytes) {
        return bytes ? SizeText(*bytes, signs) : "";
    };
    std::optional<std::uint64_t> used;
    if (volume.size && volume.free) used = *volume.size - std::min(*volume.size, *volume.free);
    const std::string texts[] = {volume.label.value_or(""),
                                 machine_.folders.LongPath(path),
                                 size(volume.size),
                                 size(volume.free),
                                 size(used),
                                 volume.fileSystem.value_or("")};
    const int row = lstDrives_.AddRow(drive, runtime::ToText(number) + 'A');
    int column = VolumeColumn;
    for (const std::string& text : texts) lstDrives_.SetText(row, column++, text);
}

bool frmVirtualDrive::RunSubst(const std::string& arguments) {
    const std::string command = std::string(HiddenShell) + "subst " + arguments;
    return !sys::WaitForProcessEnd(machine_, RunHidden(machine_.processes, command));
}

void frmVirtualDrive::CreateDrive() {
    try {
        RunCreate();
    } catch (const runtime::Failure& failure) {
        machine_.messages.Show(
            "Ein Fehler ist während des erstellens aufgetreten:\r\n" + Described(failure),
            message::Critical, "Virtuelles Laufwerk konnte nicht erstellt werden");
    }
}

void frmVirtualDrive::RunCreate() {
    constexpr const char* Impossible = "Virtuelles Laufwerk kann nich erstellt werden";
    const std::string path = txtPathName_.Text();
    if (path.empty()) {
        machine_.messages.Show(
            "Um ein virtuelles Laufwerk zu erstellen müssen Sie noch den physikalischen Pfad "
            "auswählen.",
            message::Exclamation, Impossible);
        return;
    }
    if (cbodrives_.Items().empty()) {
        machine_.messages.Show(
            "Es gibt keine freien Laufwerksbuchstaben mehr um ein virtuelles Laufwerk zu "
            "erstellen. Wenn Sie weitere virtuelle Laufwerke erstellen möchten, müssen Sie vorher "
            "mindestens ein Laufwerk aus der unteren Liste entfernen.",
            message::Exclamation, Impossible);
        return;
    }
    machine_.folders.MakeCurrent(AppRoot_);
    const std::string letter = cbodrives_.Text();
    if (RunSubst(letter + ' ' + path)) {
        machine_.messages.Show(
            "Das virtuelle Laufwerk '" + letter + "' wurde erfolgreich erstellt.",
            message::Information, "Virtuelles Laufwerk erstellt");
        txtPathName_.SetText("");
    }
    RefreshDrives();
}

void frmVirtualDrive::BrowseFolder() {
    try {
        PickFolder();
    } catch (const runtime::Failure& failure) {
        if (failure.number == runtime::UserInterrupt) return;
        machine_.messages.Show(failure.description, message::Critical,
                               "Fehler " + runtime::ToText(failure.number));
    }
}

void frmVirtualDrive::PickFolder() {
    constexpr std::size_t RootLength = 3;
    std::string chosen;
    for (;;) {
        chosen = sys::BrowseForFolderPath(
            machine_.shell, *this,
            "Bitte Verzeichnis auswählen zu dem das virtuelle Laufwerk angelegt werden soll:",
            txtPathName_.Text());
        if (runtime::Length(chosen) != RootLength) break;
        machine_.messages.Show(
            "Bitte Verzeichnis auswählen, Laufwerke alleine können nicht gewählt werden.",
            message::Exclamation, "Verzeichnis auswählen");
    }
    if (chosen.empty()) return;
    const bool isFolder = runtime::Length(chosen) > 1;
    cmdcreate_.SetEnabled(isFolder);
    txtPathName_.SetText(isFolder ? ShortPath(machine_.folders, chosen) : "");
}

void frmVirtualDrive::DeleteDrive() {
    try {
        RunDelete();
    } catch (const runtime::Failure& failure) {
        machine_.messages.Show(
            "Das virtuelle Laufwerk konnte nicht gelöscht werden:\r\n" + Described(failure),
            message::Critical, "Löschen fehlgeschlagen");
    }
}

void frmVirtualDrive::RunDelete() {
    const std::string drive = runtime::Left(lstDrives_.Text(lstDrives_.SelectedRow()), 2);
    const std::string question =
        "Sind Sie sicher das Sie das virtuelle Laufwerk '" + drive + "' löschen wollen?";
    if (machine_.messages.Show(question, DriveQuestion, "Virtuelles Laufwerk löschen") !=
        message::Yes) {
        return;
    }
    machine_.folders.MakeCurrent(AppRoot_);
    RunSubst(drive + " /d");
    // Counted before the list is read anew, on purpose: only a list that was empty already disables
    // them.
    if (lstDrives_.Count() == 0) {
        EnableDelete(false);
        chkrestore_.SetEnabled(false);
    }
    RefreshDrives();
}

// Each drive is stored with the name of its volume instead of its folder, on purpose: what stands
// in the store is read by no one.
void frmVirtualDrive::StoreDrives() {
    if (lstDrives_.Count() == 0) return;
    machine_.folders.MakeCurrent(AppFolder_);
    if (chkrestore_.Value() == 0) {
        RunKeyDelete(machine_.registry, RunRoot, RunKey, RunName);
        machine_.settingsStore.DeleteSection(StoreTitle, StoreSection);
        return;
    }
    RunKeyWrite(machine_, RunRoot, RunKey, RunName,
                AppFolder_ + machine_.program.ExecutableName() + ".exe -r");
    const auto save = [&](const std::string& key, const std::string& text) {
        machine_.settingsStore.Save(StoreTitle, StoreSection, key, text);
    };
    for (int row = 0; row < lstDrives_.Count(); ++row) {
        save("Drives" + runtime::ToText(row + 1),
             lstDrives_.Text(row) + DriveSeparator + lstDrives_.Text(row, VolumeColumn));
    }
    save("Count", runtime::ToText(lstDrives_.Count()));
    save("Restore", "1");
}

void frmVirtualDrive::RestoreDrives() {
    const auto stored = [&](const std::string& key) {
        return machine_.settingsStore.Get(StoreTitle, StoreSection, key, "");
    };
    const int count = static_cast<int>(
        std::clamp<double>(runtime::LeadingNumber(stored("Count")), 0, MaximumCount));
    if (count == 0) return;
    machine_.folders.MakeCurrent(AppRoot_);
    for (int number = 1; number <= count; ++number) {
        const auto parts = Split(stored("Drives" + runtime::ToText(number)), DriveSeparator);
        // Half an entry has no folder for its drive; those behind it are made all the same.
        if (parts.size() < 2) continue;
        RunSubst(runtime::Left(parts[0], 2) + ' ' + parts[1]);
        machine_.forms.DoEvents();
    }
}

void frmVirtualDrive::Exit() {
    if (!txtPathName_.Text().empty()) {
        const std::string question =
            "Wollen Sie die Einstellungen zum neuen virtuellen Laufwerk '" + cbodrives_.Text() +
            "' wirklich verwerfen?";
        if (machine_.messages.Show(question, DriveQuestion, "Einstellungen verwerfen") !=
            message::Yes) {
            return;
        }
    }
    Unload();
}

void frmVirtualDrive::EnableDelete(bool enabled) {
    cmddelete_.SetEnabled(enabled);
    mnuFile_.items.front().enabled = enabled;
}

// The right button selects a row as a click does.
void frmVirtualDrive::OpenMenu() {
    if (lstDrives_.Count() == 0) return;
    if (lstDrives_.SelectedRow() != ListView::NoRow) EnableDelete(true);
    mnuFile_.place = lstDrives_.MenuPlace();
    const toolkit::MenuItem* chosen = machine_.menus.Choose(mnuFile_);
    if (chosen) chosen->onClick();
}

}  // namespace dialogs
