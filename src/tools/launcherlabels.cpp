#include "tools/launcherlabels.h"

#include <array>
#include <string>

#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tools/launchers.h"

namespace tools {
namespace {

using toolkit::Box;
using toolkit::Label;

// What a label starts: a file by one of the three ways to start one, or a tool of its own.
enum class Tool { Program, Console, ComConsole, RestorePoint, SystemFiles, SystemProperties };

struct Row {
    const char* name;
    const char* caption;
    Tool tool;
    const char* file;
};

// In the order in which they stand in the frame, column by column.
constexpr std::array<Row, 24> Rows = {{
    {"lblCMD", "Eingabeaufforderung", Tool::Program, "\\System32\\cmd.exe"},
    {"lblComputerverwaltung", "Computerverwaltung", Tool::Console, "compmgmt.msc"},
    {"lblDatenträgerbereinigung", "Datenträgerbereinigung", Tool::Program,
     "\\System32\\cleanmgr.exe"},
    {"lblDatenträgerverwaltung", "Datenträgerverwaltung", Tool::Console, "diskmgmt.msc"},
    {"lblDefragmentierung", "Defragmentierung", Tool::Console, "dfrg.msc"},
    {"lblDiensteverwaltung", "Diensteverwaltung", Tool::Console, "services.msc"},
    {"lblDirectXDiag", "DirectX Diagnose", Tool::Program, "\\System32\\dxdiag.exe"},
    {"lblEreignisanzeige", "Ereignisanzeige", Tool::Console, "eventvwr.msc"},
    {"lblFreigegebeneOrdner", "Freigegebene Ordner", Tool::Console, "fsmgmt.msc"},
    {"lblGeräteManager", "Geräte-Manager", Tool::Console, "devmgmt.msc"},
    {"lblGruppenrichtlinienEditor", "Gruppenrichtlinien-Editor", Tool::Console, "gpedit.msc"},
    {"lblIndexdienst", "Indexdienst", Tool::Console, "ciadv.msc"},
    // With the blank at its end, on purpose: scripts find it so.
    {"lblKomponentendienste", "Komponentendienste ", Tool::ComConsole, "comexp.msc"},
    {"lblLeistungsmonitor", "Leistungsmonitor", Tool::Console, "perfmon.msc"},
    {"lblLokaleBenutzerundGruppen", "Lokale Benutzer und Gruppen", Tool::Console, "lusrmgr.msc"},
    {"lblMSConfig", "MS Config", Tool::Program, "\\PCHEALTH\\HELPCTR\\Binaries\\msconfig"},
    {"lblRegEdit32", "Registrierungs Editor", Tool::Program, "\\System32\\regedt32.exe"},
    {"lblRestorePoint", "Systemwiederherstellungspunkt", Tool::RestorePoint, ""},
    {"lblSFC", "Systemdatei-Überprüfung", Tool::SystemFiles, ""},
    {"lblSicherheitseinstellungen", "Sicherheitseinstellungen", Tool::Console, "secpol.msc"},
    {"lblSystem", "System", Tool::SystemProperties, ""},
    {"lblTaskManager", "TaskManager", Tool::Program, "\\System32\\taskmgr.exe"},
    {"lblWechselmedienverwaltung", "Wechselmedienverwaltung", Tool::Console, "ntmsmgr.msc"},
    {"lblZertifikatManager", "Zertifikat-Manager", Tool::Console, "certmgr.msc"},
}};

void Launch(const Launchers& launchers, const Row& row) {
    switch (row.tool) {
        case Tool::Program:
            return launchers.LoadExtern(row.file);
        case Tool::Console:
            return launchers.LoadExternMSC(row.file, "");
        case Tool::ComConsole:
            return launchers.LoadExternMSC2(row.file);
        case Tool::RestorePoint:
            return launchers.OpenRestorePoint();
        case Tool::SystemFiles:
            return launchers.CheckSystemFiles();
        case Tool::SystemProperties:
            return launchers.OpenSystemProperties();
    }
}

constexpr std::size_t LabelsInColumn = 8;
static_assert(Rows.size() % LabelsInColumn == 0, "the last column must be full");

// A label that is red already is the only one.
void Highlight(Label& label) {
    if (label.TextColour() == toolkit::Red) return;
    ResetLabelColors(label.Owner());
    label.SetTextColour(toolkit::Red);
}

// Links, of which the tabulator stops at the first: 24 stops would bar the way to what follows.
Label& AddLauncherLabel(toolkit::Form& form, const Row& row, const Launchers& launchers) {
    auto& label = form.Add<Label>(row.name, row.caption, toolkit::LabelStyle::Link);
    label.onClick = [&row, &launchers] { Launch(launchers, row); };
    label.onMouseMove = [&label] { Highlight(label); };
    return label;
}

}  // namespace

Box AddLauncherLabels(toolkit::Form& form, const Launchers& launchers) {
    auto& frame = form.Add<toolkit::Frame>("fraPrograms", "Programme");
    frame.onMouseMove = [&form] { ResetLabelColors(form); };
    std::vector<Box> columns;
    std::vector<Box> column;
    for (const Row& row : Rows) {
        column.push_back(toolkit::KeepSize(Leaf(AddLauncherLabel(form, row, launchers))));
        if (column.size() < LabelsInColumn) continue;
        columns.push_back(toolkit::Stretch(Gap(toolkit::Column(std::move(column)), 3)));
        column.clear();
    }
    return InFrame(frame, Gap(toolkit::Row(std::move(columns)), 8));
}

void ResetLabelColors(toolkit::Form& form) {
    for (const Row& row : Rows) form.Find<Label>(row.name).SetTextColour(toolkit::Black);
}

}  // namespace tools
