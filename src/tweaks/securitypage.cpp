#include "tweaks/securitypage.h"

#include <utility>

#include "controls/pageheading.h"
#include "platform/machine.h"
#include "toolkit/form.h"
#include "tweaks/pageparts.h"

namespace tweaks {
namespace {

using toolkit::Box;
using toolkit::Form;

// Line by line in the order of reading; the two long captions have a line of their own.
Box VariousSecurity(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraMisc", "Verschiedenes");
    std::vector<Box> lines;
    const auto line = [&](Named box) { lines.push_back(CheckBoxOn(form, box)); };
    const auto pair = [&](Named left, Named right) {
        lines.push_back(CheckBoxPair(form, left, right));
    };

    line({"chkRemoveLastDocsFolder", "\"Zuletzt verwendete Dokumente\" im Startmenü ausblenden"});
    pair({"chkShowALLFiles", "Wirklich alle Dateien anzeigen"},
         {"chkHideComputer", "Computer im Netzwerk verstecken"});
    pair({"chkWatsonIE", "Dr. Watson für Explorer aktiv"},
         {"chkWatsonXP", "Dr. Watson für MS Office aktiv"});
    pair({"chkWindowsDesktop", "Windows Desktop in eigenem Prozess starten"},
         {"chkErrorReporting", "Automatischen Fehlerreport deaktivieren"});
    line({"chkClearRecentDocs",
          "Anzeige aller \"Zuletzt verwendeten Dokumente\" beim verlassen von Windows löschen"});
    pair({"chkWindowsUpdate", "Automatisches Windowsupdate deaktivieren"},
         {"chkSecureWindows", "Universal Plug'n'Play abschalten"});
    pair({"chkLogOnAdmin", "Adminstrator im Logonscreen sichtbar"},
         {"chkDisableTM", "Taskmanager sperren"});
    pair({"chk1RecycleBinDelete", "Papierkorb von Desktop entfernen"},
         {"chkNTLogin", "'Normaler' NT-Login"});
    form.FindControl("chk1RecycleBinDelete")
        ->SetToolTip("Diese Einstellung ist erst nach einem Neustart aktiviert");
    pair({"chkPageFileDelete", "Auslagerungsdatei beim Herunterfahren löschen"},
         {"chkDelegateFolders", "Gemeinsame Dateien entfernen"});
    return InFrame(group, Gap(toolkit::Column(std::move(lines)), 3));
}

Box LogonMessageGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraWinLogOn", "Benutzerdefinierte Meldung beim Logon");
    Box show = CheckBoxOn(form, {"chkWinLogOn", "Meldung beim Systemstart anzeigen"});
    std::vector<Box> cells;
    cells.push_back(LabelOn(form, {"lblWinLogOn", "Meldung:"}));
    Box text = TextBoxOn(form, "txtWinLogOnT", {.multiLine = true});
    cells.push_back(Stretch(AtLeast(text, 0, 86)));
    cells.push_back(LabelOn(form, {"lblWinLogoOnC", "Fenster Titel:"}));
    cells.push_back(Stretch(TextBoxOn(form, "txtWinLogOnC")));
    return InFrame(group,
                   Gap(toolkit::Column({show, Gap(toolkit::Grid(2, std::move(cells)), 3)}), 3));
}

Box DataGroup(Form& form) {
    return CheckBoxGroup(form, {"fraDatensicherheit", "Datensicherheit"},
                         {
                             {"chkDatensicherheit(1)", "ALEXA Eintrag entfernen"},
                             {"chkDatensicherheit(2)", "Windows Media Player Update aktiv"},
                         });
}

}  // namespace

Box AddSecurityPage(Form& form, const platform::Machine& machine) {
    Box heading = controls::PageHeading(form, "lblMisc", "Sicherheit && Administratives");
    Box various = VariousSecurity(form);
    Box message = toolkit::Stretch(LogonMessageGroup(form));
    Box data = DataGroup(form);
    Box buttons =
        ButtonsOfPage(form, machine.clock,
                      {{"cmdDefaultMisc", "TX=Standard"}, {"cmdOptimalMisc", "TX=Empfohlen"}});
    return Gap(toolkit::Column({heading, various, Gap(toolkit::Row({message, data}), 8),
                                toolkit::Filler(), buttons}),
               6);
}

}  // namespace tweaks
