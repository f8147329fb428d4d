#include "dialogs/frmfirstinfo.h"

#include "controls/chameleonbutton.h"
#include "toolkit/controls.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using controls::Persisted;

constexpr const char* Warning =
    "Dieses Programm ändert Einstellungen der Registrierung und des Systems\r\n"
    "und löscht auf Wunsch Dateien. Ungeeignete Einstellungen können dazu\r\n"
    "führen, dass Windows oder einzelne Programme nicht mehr richtig arbeiten\r\n"
    "oder dass Daten verloren gehen.\r\n"
    "\r\n"
    "Die Benutzung geschieht auf eigene Gefahr; eine Haftung für Schäden ist\r\n"
    "ausgeschlossen. Für die Sicherung Ihrer Daten sind Sie selbst\r\n"
    "verantwortlich: Legen Sie vor dem ersten Gebrauch eine Sicherungskopie\r\n"
    "und einen Systemwiederherstellungspunkt an.";

constexpr const char* Declaration =
    "Mit der Schaltfläche \"Akzeptieren\" erklären Sie, dass Sie diese Warnung\r\n"
    "gelesen haben und mit ihr einverstanden sind.";

}  // namespace

frmFirstInfo::frmFirstInfo(const platform::Machine& machine)
    : Form(machine.forms, "frmFirstInfo", "Warnung", {}), settings_(machine.settingsStore) {
    auto& warning = Add<toolkit::Label>("Label1", Warning);
    auto& declaration = Add<toolkit::Label>("Label2", Declaration);
    auto& accept = Add<chameleonButton>("Command2", Persisted{"TX=Akzeptieren"}, machine.clock);
    auto& refuse = Add<chameleonButton>("Command1", Persisted{"TX=Ablehnen"}, machine.clock);
    accept.onClick = [this] { Accept(); };
    refuse.onClick = [this] { Unload(); };

    // Accepting must be meant: the dialog opens on the refusal, which Return then presses.
    firstFocus = &refuse;
    cancelButton = &refuse;
    sizeToContent = true;
    SetLayout(Margin(Gap(toolkit::Column({
                             Leaf(warning),
                             Leaf(declaration),
                             Gap(toolkit::Row({toolkit::Filler(), Leaf(accept), Leaf(refuse)}), 8),
                         }),
                         16),
                     16));
}

void frmFirstInfo::Accept() {
    settings_.SaveSetting("Options", "Accepted", "Yes");
    Unload();
}

}  // namespace dialogs
