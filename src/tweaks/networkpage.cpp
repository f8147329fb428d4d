#include "tweaks/networkpage.h"

#include <string>
#include <utility>

#include "controls/chameleonbutton.h"
#include "controls/pageheading.h"
#include "platform/machine.h"
#include "toolkit/form.h"
#include "tweaks/pageparts.h"

namespace tweaks {
namespace {

using toolkit::Box;
using toolkit::Form;

// Shared by the five connection types and by no other option button of the form.
constexpr int ConnectionTypes = 2;

// Labels and the fields behind them in one line.
Box LineOf(std::vector<Box> cells) {
    cells.push_back(toolkit::Filler());
    return Gap(toolkit::Row(std::move(cells)), 6);
}

Box DialUpGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("Frame2", "DFÜ-Einstellungen");
    std::vector<Box> line;
    line.push_back(LabelOn(form, {"lblMTU", "MTU:"}));
    line.push_back(ComboBoxOn(form, "cboMTU", {.columns = 5}));
    line.push_back(LabelOn(form, {"lblRWIN", "RWIN:"}));
    line.push_back(TextBoxOn(form, "txtRWIN", {.columns = 6}));
    line.push_back(LabelOn(form, {"lblTTL", "TTL:"}));
    line.push_back(TextBoxOn(form, "txtTTL", {.columns = 4}));
    return InFrame(group, LineOf(std::move(line)));
}

Box ConnectionsGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraHTTPConnections", "Simultane HTTP Verbindungen");
    std::vector<Box> line;
    line.push_back(LabelOn(form, {"lblHTTP10", "HTTP 1.0"}));
    line.push_back(ComboBoxOn(form, "cboHTTP10", {.columns = 4}));
    line.push_back(LabelOn(form, {"lblHTTP11", "HTTP 1.1"}));
    line.push_back(ComboBoxOn(form, "cboHTTP11", {.columns = 4}));
    return InFrame(group, LineOf(std::move(line)));
}

Box NetworkGroup(Form& form) {
    return CheckBoxGroup(
        form, {"fraThreads", "Netzwerk && Internet"},
        {
            {"chkEnableNetworkProcessor", "Netzwerkkartenprozessor einschalten"},
            {"chkDNSSpeed", "Geschwindigkeit der DNS Auflösung verbessern"},
            {"chkNetworkSpeed", "Netzwerk beschleunigen (Threads && Commands erhöhen)"},
            {"chkTCPTuning", "TCP/IP Tuning"},
            {"chkNetworkTasks", "Netzwerk beschleunigen (Deaktivieren der Tasksuche)"},
        });
}

Box AdvancedGroup(Form& form) {
    return CheckBoxGroup(form, {"fraADvanced", "Erweiterte Optionen"},
                         {
                             {"chkSACK", "SACK (Support for Selective Acknowledgements)"},
                             {"chkAutoMTU", "Automatic MTU detection"},
                             {"chkMUTBH", "MTU 'Blackhole' Detection"},
                             {"chkIPForwarding", "IP Forwarding aktiviert"},
                         });
}

Box ExplorerGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("fraIESpecials", "Internet Explorer");
    Box first =
        CheckBoxColumn(form, {
                                 {"chkPWEntrys", "Im IE eingegebene Passwörter nicht speichern"},
                                 {"chkIEWinPos", "Fensterpos. speichern"},
                             });
    Box label = LabelOn(form, {"Label8", "IE Suchseite:"});
    Box searchPage = Stretch(TextBoxOn(form, "txtIETitel", {.maxLength = 255}));
    Box last =
        CheckBoxColumn(form, {
                                 {"chkScriptDebugging", "Script Debugging deaktivieren"},
                                 {"chkNotifyDownloadReady", "Meldung wenn Download abgeschlossen"},
                             });
    return InFrame(
        group, Gap(toolkit::Column({first, Gap(toolkit::Row({label, searchPage}), 6), last}), 3));
}

Box OutlookGroup(Form& form, platform::Clock& clock) {
    auto& group = form.Add<toolkit::Frame>("fraIE6", "Outlook XP/2003");
    Box extensions =
        CheckBoxOn(form, {"chkIEExtensions", "Folgende Dateierweiterungen bei Anhängen zulassen:"});
    Box list = Stretch(TextBoxOn(form, "txtExtensions"));
    list.control->SetToolTip(
        "Weitere Erweiterung durch ';' (Semikolon) trennen (Beispiel: exe;zip;dll).");
    auto& button = form.Add<controls::chameleonButton>("cmdExtensionDefault",
                                                       controls::Persisted{"TX=Standard"}, clock);
    Box tray = CheckBoxOn(
        form, {"chkOutlookTray", "Outlook nach minimieren in die Tray Notification Area legen"});
    return InFrame(group,
                   Gap(toolkit::Column({extensions, toolkit::Row({list, Leaf(button)}), tray}), 3));
}

Box ConnectionTypesGroup(Form& form) {
    auto& group = form.Add<toolkit::Frame>("Frame3", "Optimale Settings");
    std::vector<Box> cells;
    for (const char* caption : {"Manuell", "Analog", "ISDN", "Netzwerk", "DSL"}) {
        const std::string name = "optOptimalDFUESets(" + std::to_string(cells.size()) + ")";
        cells.push_back(Leaf(form.Add<toolkit::OptionButton>(name, caption, ConnectionTypes)));
    }
    return InFrame(group, Gap(toolkit::Grid(2, std::move(cells)), 4));
}

}  // namespace

Box AddNetworkPage(Form& form, const platform::Machine& machine) {
    Box heading = controls::PageHeading(form, "Label7", "DFÜ Einstellungen");

    Box dialUp = DialUpGroup(form);
    Box connections = ConnectionsGroup(form);
    Box numbers =
        toolkit::Stretch(Gap(toolkit::Column({dialUp, toolkit::Stretch(connections)}), 6));
    Box network = NetworkGroup(form);
    Box advanced = toolkit::Stretch(AdvancedGroup(form));
    Box explorer = toolkit::Stretch(ExplorerGroup(form));
    Box outlook = OutlookGroup(form, machine.clock);
    Box types = toolkit::Stretch(ConnectionTypesGroup(form));
    Box buttons =
        ButtonsOfPage(form, machine.clock,
                      {{"cmdStandardDfue", "TX=Standard"}, {"cmdOptimalDfue", "TX=Empfohlen"}});
    std::vector<Box> rows;
    rows.push_back(heading);
    rows.push_back(toolkit::Row({numbers, network}));
    rows.push_back(toolkit::Row({advanced, explorer}));
    rows.push_back(toolkit::Row({outlook, types}));
    rows.push_back(toolkit::Filler());
    rows.push_back(buttons);
    return Gap(toolkit::Column(std::move(rows)), 6);
}

}  // namespace tweaks
