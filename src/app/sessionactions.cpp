#include "app/sessionactions.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "app/frmmain.h"
#include "controls/chameleonbutton.h"
#include "platform/messages.h"
#include "platform/session.h"
#include "toolkit/controls.h"

namespace app {
namespace {

namespace message = platform::message;
using platform::Session;

struct SessionEnd {
    const char* title;
    const char* question;
    std::int32_t action;
};

constexpr SessionEnd LogOff = {
    .title = "Benutzer abmelden",
    .question = "Soll der aktuelle Benutzer wirklich abgemeldet werden?",
    .action = Session::LogOff,
};
constexpr SessionEnd Restart = {
    .title = "Computer neu starten",
    .question = "Soll der Computer wirklich neu gestartet werden?",
    .action = Session::Restart,
};
// The tray menu says "ausschalten" where the question says "herunterfahren"; on purpose.
constexpr SessionEnd ShutDown = {
    .title = "Computer herunterfahren",
    .question = "Soll der Computer wirklich heruntergefahren werden?",
    .action = Session::ShutDown,
};

// The box's name misleads: set, it leaves the question out. All three ends obey it.
bool Confirmed(const toolkit::Form& mainForm, const platform::Machine& machine,
               const SessionEnd& end) {
    if (mainForm.Find<toolkit::CheckBox>("chkRebootQuestion").Value() != 0) return true;
    return machine.messages.Show(end.question, message::YesNo + message::Question, end.title) ==
           message::Yes;
}

void EndSession(toolkit::Form& mainForm, const platform::Machine& machine, const SessionEnd& end) {
    if (!Confirmed(mainForm, machine, end)) return;
    const bool forced = mainForm.Find<toolkit::CheckBox>("chkForceReboot").Value() == 1;
    machine.session.ExitSession(end.action, forced ? 1 : 0);
    mainForm.Unload();
}

}  // namespace

void frmMain::DoLogoff() {
    EndSession(*this, machine_, LogOff);
}

void frmMain::DoReboot() {
    EndSession(*this, machine_, Restart);
}

void frmMain::DoShutdown() {
    EndSession(*this, machine_, ShutDown);
}

toolkit::Box AddSessionButtons(frmMain& form, platform::Clock& clock) {
    auto& frame = form.Add<toolkit::Frame>("Frame6", "Sitzung");
    const auto button = [&](const char* name, const char* properties, toolkit::Handler onClick) {
        auto& made =
            form.Add<controls::chameleonButton>(name, controls::Persisted{properties}, clock);
        made.onClick = std::move(onClick);
        return toolkit::Stretch(toolkit::Leaf(made));
    };
    std::vector<toolkit::Box> cells;
    cells.push_back(button("cmdShutdown(0)", "TX=Ausschalten", [&form] { form.DoShutdown(); }));
    cells.push_back(button("cmdShutdown(1)", "TX=Neu starten", [&form] { form.DoReboot(); }));
    cells.push_back(button("cmdShutdown(2)", "TX=Abmelden", [&form] { form.DoLogoff(); }));
    cells.push_back(button("cmdLockWS", "TX=Sperren", [&form] { form.LockStation(); }));
    return toolkit::InFrame(frame, toolkit::Grid(2, std::move(cells)));
}

}  // namespace app
