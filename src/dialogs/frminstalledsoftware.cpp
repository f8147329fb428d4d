#include "dialogs/frminstalledsoftware.h"

#include <algorithm>
#include <utility>

#include "controls/chameleonbutton.h"
#include "platform/menus.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "registry/cregistry.h"
#include "runtime/atend.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "runtime/temporarily.h"
#include "system/processwait.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "toolkit/listhelpers.h"
#include "toolkit/listview.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using platform::Registry;
using toolkit::ListView;

constexpr int Question = platform::message::YesNo + platform::message::Question;

constexpr const char* UninstallKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

constexpr int NameColumn = 0;
constexpr int InternalNameColumn = 1;

// As far as the first NUL, since neither the list nor a command line shows what follows one. ""
// also for data that are no text, such as bytes.
std::string ReadText(registry::cRegistry& entry, const char* name) {
    entry.ValueKey = name;
    entry.ValueType = Registry::String;
    return registry::AsText(entry.Value()).c_str();
}

}  // namespace

frmInstalledSoftware::frmInstalledSoftware(const platform::Machine& machine)
    : Form(machine.forms, "frmInstalledSoftware", "Installierte Software", {}),
      machine_(machine),
      lvwSoftware_(Add<ListView>(
          "lvwSoftware", toolkit::ListViewStyle{.multiSelect = true, .columns = 100, .lines = 18})),
      mnuFile_{"mnuFile",
               {{"mnuUninstall", "Deinstallieren", [this] { UninstallSelected(); }},
                {"mnuDeleteItem", "Eintrag löschen", [this] { DeleteSelected(); }}}} {
    for (const char* header : {"Name", "Interner Name", "Uninstaller"}) {
        lvwSoftware_.AddColumn(header);
    }
    lvwSoftware_.onColumnClick = [this](int header) {
        toolkit::SortByHeader(lvwSoftware_, header, sortDescending_);
    };
    lvwSoftware_.onDoubleClick = [this] { AskUninstall(); };
    lvwSoftware_.onRightButton = [this] { OpenMenu(); };
    lvwSoftware_.onKeyDown = [this](int virtualKey) {
        if (virtualKey == toolkit::key::Delete) DeleteSelected();
    };

    auto& lblFound = Add<toolkit::Label>("lblFound", "");
    const auto button = [&](const char* name, const char* properties, toolkit::Handler click) {
        auto& made = Add<chameleonButton>(name, controls::Persisted{properties}, machine.clock);
        made.onClick = std::move(click);
        return Leaf(made);
    };
    std::vector<toolkit::Box> row;
    row.push_back(button("cmdRefresh", "TX=Aktualisieren", [this] { FillSoftwareList(false); }));
    row.push_back(button("cmdUninstall", "TX=Deinstallieren", [this] { UninstallSelected(); }));
    row.push_back(button("cmdDeleteItem", "TX=Eintrag löschen", [this] { DeleteSelected(); }));
    row.push_back(button("cmdFindInvalidLinks", "TX=Ungültige Einträge suchen",
                         [this] { FillSoftwareList(true); }));
    row.push_back(toolkit::Filler());
    row.push_back(button("cmdOK", "TX=OK", [this] { Unload(); }));

    sizeToContent = true;
    SetLayout(
        Margin(Gap(toolkit::Column({Gap(toolkit::Column({Leaf(lvwSoftware_), Leaf(lblFound)}), 4),
                                    Gap(toolkit::Row(std::move(row)), 8)}),
                   16),
               16));
}

frmInstalledSoftware::~frmInstalledSoftware() {
    EnableTimer(false);
}

// Nothing remains of an earlier time.
void frmInstalledSoftware::OnLoad() {
    lvwSoftware_.SetSortKey(0);
    lvwSoftware_.SetSortOrder(ListView::Ascending);
    sortDescending_ = false;
    FillSoftwareList(false);
}

bool frmInstalledSoftware::OnKeyDown(int virtualKey) {
    if (virtualKey == toolkit::key::F5) {
        FillSoftwareList(false);
    } else if (virtualKey == toolkit::key::Escape) {
        Unload();
    } else {
        return false;
    }
    return true;
}

// The uninstallers run on, unwatched.
void frmInstalledSoftware::OnUnload() {
    EnableTimer(false);
}

void frmInstalledSoftware::FillSoftwareList(bool onlyInvalid) {
    const toolkit::ScreenHourglass hourglass{host_};
    const runtime::AtEnd end{[this] { lvwSoftware_.UnlockWindow(); }};
    lvwSoftware_.LockWindow();
    lvwSoftware_.SetSorted(false);
    for (int rows = lvwSoftware_.Count(); rows > 0; --rows) lvwSoftware_.RemoveRow(0);
    AddEntries(onlyInvalid);
    Find<toolkit::Label>("lblFound")
        .SetCaption("Gefunden: " + runtime::ToText(lvwSoftware_.Count()) + " Anwendungen");
    toolkit::AdjustColumnWidth(lvwSoftware_, true, 1);
    lvwSoftware_.SetSorted(true);
}

void frmInstalledSoftware::AddEntries(bool onlyInvalid) {
    registry::cRegistry entry(machine_);
    entry.ClassKey = Registry::LocalMachine;
    entry.SectionKey = UninstallKey;
    std::vector<std::string> names;
    int count = 0;
    entry.EnumerateSections(names, count);
    for (const std::string& name : names) {
        entry.SectionKey = std::string(UninstallKey) + '\\' + name;
        std::string uninstallString = ReadText(entry, "UninstallString");
        std::string displayName = ReadText(entry, "DisplayName");
        if (displayName.empty() || uninstallString.empty() || onlyInvalid) continue;
        const int row = lvwSoftware_.AddRow(std::move(displayName));
        lvwSoftware_.SetText(row, InternalNameColumn, name);
        lvwSoftware_.SetText(row, UninstallerColumn, std::move(uninstallString));
    }
}

// What is asked about is started, whatever may be selected by the time of the answer.
void frmInstalledSoftware::AskUninstall() {
    const auto commands = SelectedTexts(UninstallerColumn);
    if (IsYes("Soll die Anwendung '" + SelectedText() + "' wirklich deinstalliert werden?",
              "Deinstallieren")) {
        Uninstall(commands);
    }
}

void frmInstalledSoftware::Uninstall(const std::vector<std::string>& commands) {
    try {
        StartUninstallers(commands);
    } catch (const runtime::Failure& failure) {
        EnableTimer(false);
        TellFailure("entfernt werden.", failure, "Fehler beim deinstallieren aufgetreten");
    }
}

// All that are selected start at once, and only the last one is watched.
void frmInstalledSoftware::StartUninstallers(const std::vector<std::string>& commands) {
    for (const std::string& command : commands) {
        processId_ = static_cast<std::int32_t>(
            machine_.processes.Start(command, platform::Processes::NormalWindow));
    }
    if (!commands.empty()) EnableTimer(true);
}

void frmInstalledSoftware::tmrActiveProcess_Timer() {
    if (keepsRows_ || sys::IsProcessActive(machine_.processes, processId_)) return;
    const int index = std::max(SelectedIndex(), 1);
    EnableTimer(false);
    FillSoftwareList(false);
    SelectIndex(index);
}

void frmInstalledSoftware::DeleteSelected() {
    try {
        DeleteEntries();
    } catch (const runtime::Failure& failure) {
        TellFailure(
            "gelöscht werden!", failure,
            "Eintrag konnte nicht gelöscht werden [" + runtime::ToText(failure.number) + ']');
    }
}

void frmInstalledSoftware::DeleteEntries() {
    const std::string title = SelectedText() + " löschen";
    const auto names = SelectedTexts(NameColumn);
    if (!IsYes("Sollen die Einträge wirklich aus der Softwareliste gelöscht werden?", title)) {
        return;
    }
    const int index = std::max(SelectedIndex() - 1, 1);
    registry::cRegistry entry(machine_);
    entry.ClassKey = Registry::LocalMachine;
    for (const std::string& name : names) {
        // By what the list shows and not by the internal name, on purpose: an entry goes only where
        // the two are equal.
        entry.SectionKey = std::string(UninstallKey) + '\\' + name;
        entry.DeleteKey();
    }
    FillSoftwareList(false);
    SelectIndex(index);
}

// Nothing may be selected by then, which may be the very failure.
void frmInstalledSoftware::TellFailure(const std::string& what, const runtime::Failure& failure,
                                       const std::string& title) {
    const std::string text = SelectedIndex() > 0 ? SelectedText() : "";
    machine_.messages.Show(
        '\'' + text + "' konnte nicht " + what + "\r\n\r\nFehler: " + failure.description,
        platform::message::Critical, title);
    FillSoftwareList(false);
}

int frmInstalledSoftware::SelectedIndex() const {
    return lvwSoftware_.SelectedRow() + 1;
}

void frmInstalledSoftware::SelectIndex(int index) {
    const int row = index - 1;
    // A failure about a row that has gone would deny a deletion that was done.
    if (!lvwSoftware_.Has(row)) return;
    lvwSoftware_.SetSelected(row, true);
    lvwSoftware_.EnsureVisible(row);
}

const std::string& frmInstalledSoftware::SelectedText() const {
    return lvwSoftware_.Text(lvwSoftware_.SelectedRow());
}

std::vector<std::string> frmInstalledSoftware::SelectedTexts(int column) const {
    std::vector<std::string> texts;
    for (int row = 0; row < lvwSoftware_.Count(); ++row) {
        if (lvwSoftware_.Selected(row)) texts.push_back(lvwSoftware_.Text(row, column));
    }
    return texts;
}

bool frmInstalledSoftware::IsYes(const std::string& question, const std::string& title) {
    const runtime::Temporarily keepsRows(keepsRows_, true);
    return machine_.messages.Show(question, Question, title) == platform::message::Yes;
}

void frmInstalledSoftware::EnableTimer(bool enabled) {
    if (enabled == (tmrActiveProcess_ != 0)) return;
    if (enabled) {
        tmrActiveProcess_ =
            machine_.clock.StartTimer(ProcessInterval, [this] { tmrActiveProcess_Timer(); });
    } else {
        machine_.clock.StopTimer(std::exchange(tmrActiveProcess_, 0));
    }
}

void frmInstalledSoftware::OpenMenu() {
    if (lvwSoftware_.Count() == 0) return;
    mnuFile_.place = lvwSoftware_.MenuPlace();
    const toolkit::MenuItem* chosen = [this] {
        const runtime::Temporarily keepsRows(keepsRows_, true);
        return machine_.menus.Choose(mnuFile_);
    }();
    if (chosen) chosen->onClick();
}

}  // namespace dialogs
