#include "app/apply.h"

#include <string>

#include "dialogs/forminform.h"
#include "dialogs/frmpassword.h"
#include "platform/messages.h"
#include "platform/session.h"
#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "tools/launchers.h"

namespace app {
namespace {

namespace message = platform::message;
using runtime::Skip;

constexpr int AskYesNo = message::YesNo + message::Question;

// A box that cannot be shown answers nothing, which is not Yes.
bool IsYes(const platform::Machine& machine, const char* text, const char* title) {
    return machine.messages.Show(text, AskYesNo, title) == message::Yes;
}

}  // namespace

Apply::Apply(toolkit::Form& mainForm, dialogs::frmPassword& password,
             const platform::Machine& machine, Parts parts)
    : mainForm_(mainForm), password_(password), machine_(machine), parts_(std::move(parts)) {}

void Apply::Run() {
    if (!IsYes(machine_, "Sollen die Einstellungen übernommen werden?",
               "Einstellungen speichern")) {
        return;
    }
    if (!PasswordConfirmed()) return;
    OfferRestorePoint();
    Skip([&] { parts_.saveProgramOptions(); });
    Skip([&] { parts_.writeRegistry(); });
    OfferRestart();
}

// Cancelling the dialog empties its box and so ends in the same message as a wrong password; there
// is no separate way out. Letter case counts.
bool Apply::PasswordConfirmed() {
    const std::string& expected = mainForm_.Find<toolkit::TextBox>("txtALPassword").Text();
    if (mainForm_.Find<toolkit::CheckBox>("chkAutoLogin").Value() != 1 || expected.empty()) {
        return true;
    }
    auto& typed = password_.Find<toolkit::TextBox>("txtPasswort");
    Skip([&] { typed.SetText(""); });
    Skip([&] {
        password_.Load();
        dialogs::fFormInFormZentrieren(password_, mainForm_, machine_.forms.WorkArea());
    });
    Skip([&] { password_.ShowModal(); });
    if (typed.Text() == expected) return true;
    machine_.messages.Show(
        "Das Passwort ist falsch.\r\nBitte Passworteingabe beim Auto-Login überprüfen!",
        message::Exclamation, "Passwort falsch");
    return false;
}

// The system's own wizard does the work; whether a point was really set is not known. Neither
// answer changes what follows.
void Apply::OfferRestorePoint() {
    const bool wanted = IsYes(machine_,
                              "Sollen ein Systemwiederherstellungspunkt gesetzt werden?\r\n\r\n"
                              "(Sie können damit das System wieder herstellen wenn es nach den\r\n"
                              "Änderungen nicht mehr Ordnungsgemäß funktioniert!)",
                              "Systemwiederherstellungspunkt");
    if (!wanted) return;
    Skip([&] { tools::WaitForRestoreTool(machine_); });
}

// Asked after every pass, whatever the pass did: it gives nothing back. The restart never forces,
// and the option boxes for restarts have no say here.
void Apply::OfferRestart() {
    const bool wanted =
        IsYes(machine_,
              "Einstellungen erfolgreich übernommen!\r\n\r\n"
              "Zum initialisieren einiger Einstellungen ist ein Neustart erforderlich.\r\n\r\n"
              "Soll der Neustart von Windows nun durchgeführt werden?",
              "Einstellungen gespeichert");
    if (!wanted) return;
    Skip([&] { machine_.session.ExitSession(platform::Session::Restart, 0); });
    Skip([&] { mainForm_.Unload(); });
}

}  // namespace app
