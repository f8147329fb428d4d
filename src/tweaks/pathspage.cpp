#include "tweaks/pathspage.h"

#include <array>
#include <string>
#include <utility>

#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "system/currentuser.h"
#include "system/folderdialog.h"
#include "system/systemdirectorypaths.h"
#include "toolkit/form.h"
#include "tweaks/pageparts.h"

namespace tweaks {
namespace {

using toolkit::Box;
using toolkit::Form;
using toolkit::Label;

// What a row's default path begins with.
enum class Base { AllUsers, User, WindowsDrive };

struct PathRow {
    const char* name;
    Base base;
    // Behind the base.
    const char* folder;
};

constexpr std::array<PathRow, 14> PageRows = {{
    {"Verwaltung", Base::AllUsers, "\\Startmenü\\Programme\\Verwaltung"},
    {"Anwendungsdaten", Base::AllUsers, "\\Anwendungsdaten"},
    {"Desktop", Base::AllUsers, "\\Desktop"},
    {"Dokumente", Base::AllUsers, "\\Dokumente"},
    // The blank at the end is on purpose; it also stands in the folder dialog's title.
    {"Favoriten ", Base::AllUsers, "\\Favoriten"},
    {"Programme", Base::AllUsers, "\\Startmenü\\Programme"},
    {"Start Menü", Base::AllUsers, "\\Startmenü"},
    {"Autostart", Base::AllUsers, "\\Startmenü\\Programme\\Autostart"},
    {"Vorlagen", Base::AllUsers, "\\Vorlagen"},
    {"Eigene Musik", Base::User, "\\Eigene Dateien\\Eigene Musik"},
    {"Eigene Bilder", Base::User, "\\Eigene Dateien\\Eigene Bilder"},
    {"Eigene Videos", Base::User, "\\Eigene Dateien\\Eigene Videos"},
    {"Eigene Dateien", Base::User, "\\Eigene Dateien"},
    {"Installationspfad", Base::WindowsDrive, "\\Programme"},
}};

constexpr char Profiles[] = "C:\\Dokumente und Einstellungen\\";

constexpr char Hint[] =
    "Achtung: Wenn Sie Systempfade ändern ist es möglich das bereits installierte Programme nicht "
    "mehr richtig funktionieren. Sie sollten dann per \"Standard\" Button den Standard wieder "
    "herstellen. Die Änderungen wirken sich nur auf Programme aus die NACH dem ändern installiert "
    "werden.";

// In pixels at 96 dots per inch. The names have one width, so that all paths begin below each
// other; the buttons are lower than others, so that the page has room for all rows.
constexpr int NameWidth = 110;
constexpr toolkit::Size ButtonSize{26, 19};
constexpr int HintHeight = 3 * 13;

std::string Member(const char* group, std::size_t index) {
    return group + ('(' + std::to_string(index) + ')');
}

void BrowseForPath(Form& form, const platform::Machine& machine, std::size_t index) {
    auto& path = form.Find<Label>(Member("lblVerwaltung", index));
    const std::string name = form.Find<Label>(Member("lblPathNames", index)).Caption();
    const std::string chosen = sys::BrowseForFolderPath(
        machine.shell, form, "Bitte Ordner für " + name + " auswählen", path.Caption());
    if (!chosen.empty()) path.SetCaption(chosen);
}

void PathPressed(Form& form, const platform::Machine& machine, std::size_t index) {
    try {
        BrowseForPath(form, machine, index);
    } catch (const runtime::Failure& failure) {
        if (failure.number == runtime::UserInterrupt) return;
        machine.messages.Show(failure.description, platform::message::Critical,
                              "Fehler " + std::to_string(failure.number));
    }
}

Box RowOfPath(Form& form, const platform::Machine& machine, std::size_t index) {
    Box name = LabelOn(form, {Member("lblPathNames", index).c_str(), PageRows[index].name});
    auto& path = form.Add<Label>(Member("lblVerwaltung", index), "", toolkit::LabelStyle::Path);
    auto& button = form.Add<controls::chameleonButton>(
        Member("cmdPath", index), controls::Persisted{"TX=..."}, machine.clock);
    button.SetToolTip("Ordner für " + runtime::Trim(PageRows[index].name) + " auswählen");
    button.onClick = [&form, machine, index] { PathPressed(form, machine, index); };
    return Gap(toolkit::Row({AtLeast(name, NameWidth, 0), toolkit::Stretch(Leaf(path)),
                             AtMost(Leaf(button), ButtonSize.width, ButtonSize.height)}),
               8);
}

// Drive C and the German names whatever the machine's own are, on purpose; only the folder of the
// programs follows the drive of Windows. The user's name is asked for anew by each of his rows. An
// untold name or directory leaves its part of the path empty.
std::string DefaultPath(const PathRow& row, const platform::SystemFacts& facts) {
    switch (row.base) {
        case Base::AllUsers:
            return std::string(Profiles) + "All Users" + row.folder;
        case Base::User:
            return Profiles + sys::GetCurrentUserName(facts) + row.folder;
        default:
            return runtime::Left(sys::clsGetSystemDirectoryPaths(facts).WindowsDirectory(), 2) +
                   row.folder;
    }
}

}  // namespace

Box AddPathsPage(Form& form, const platform::Machine& machine) {
    Box heading = controls::PageHeading(form, "lblSystemPaths", "Systempfade ändern");
    Box hint = AtLeast(LabelOn(form, {"lblHintSystemPaths", Hint}), 0, HintHeight);
    std::vector<Box> rows;
    for (std::size_t i = 0; i < PageRows.size(); ++i) rows.push_back(RowOfPath(form, machine, i));
    Box paths = Gap(toolkit::Column(std::move(rows)), 1);
    Box buttons = ButtonsOfPage(form, machine.clock, {{"cmdPathDefault", "TX=Standard"}});
    return Gap(toolkit::Column({heading, hint, paths, toolkit::Filler(), buttons}), 6);
}

void SetDefaultPaths(Form& form, const platform::SystemFacts& facts) {
    for (std::size_t i = 0; i < PageRows.size(); ++i) {
        form.Find<Label>(Member("lblVerwaltung", i)).SetCaption(DefaultPath(PageRows[i], facts));
    }
}

}  // namespace tweaks
