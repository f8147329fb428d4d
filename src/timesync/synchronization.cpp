#include "timesync/synchronization.h"

#include <cmath>
#include <new>
#include <utility>

#include "platform/locale.h"
#include "platform/messages.h"
#include "runtime/failure.h"
#include "timesync/dfueaktiv.h"
#include "timesync/remotetime.h"
#include "timesync/timeanswer.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace timesync {
namespace {

using namespace platform::message;

constexpr int ClockInterval = 1000;

constexpr char UpdatedTitle[] = "Einstellungen aktualisiert";
constexpr char FailedTitle[] = "Fehler beim synchronisieren";

}  // namespace

Synchronization::Synchronization(toolkit::Form& form, const platform::Machine& machine,
                                 TimeServer server)
    : form_(form),
      machine_(machine),
      client_(machine.forms, machine.socket, machine.clock, machine.systemClock,
              std::move(server)) {}

Synchronization::~Synchronization() {
    Stop_tmrUhrzeit();
}

void Synchronization::Start_tmrUhrzeit() {
    if (tmrUhrzeit_ != 0) return;
    tmrUhrzeit_ = machine_.clock.StartTimer(ClockInterval, [this] { tmrUhrzeit_Timer(); });
}

void Synchronization::Stop_tmrUhrzeit() {
    if (tmrUhrzeit_ != 0) machine_.clock.StopTimer(std::exchange(tmrUhrzeit_, 0));
}

void Synchronization::tmrUhrzeit_Timer() {
    const platform::LocalTime now = machine_.clock.Now();
    form_.Find<toolkit::Label>("lblDateAndTime")
        .SetCaption(machine_.locale.GermanDate(now) + ", " + machine_.locale.ShortTime(now) +
                    " Uhr");
}

void Synchronization::cmdSynchronizeDateTime_Click() {
    try {
        Synchronize();
    } catch (const runtime::Failure& failure) {
        TellFailure(failure);
    } catch (const std::bad_alloc&) {
        TellFailure(runtime::Failure(runtime::OutOfMemory));
    }
}

void Synchronization::TellFailure(const runtime::Failure& failure) {
    ShowInLabel("");
    machine_.forms.SetScreenPointer(toolkit::DefaultPointer);
    machine_.messages.Show(
        "Datum und Uhrzeit NICHT erfolgreich synchronisiert!\r\n\r\n"
        "Beschreibung: " +
            failure.description + " [" + std::to_string(failure.number) + ']',
        Information, UpdatedTitle);
    Start_tmrUhrzeit();
}

// The time server's answer is not waited for: the message says that it was asked, and the clock
// changes later, maybe behind the open box. The computer on the network has answered by then, and
// its success is told twice. Both are on purpose.
void Synchronization::Synchronize() {
    machine_.forms.SetScreenPointer(toolkit::Hourglass);
    Stop_tmrUhrzeit();
    ShowInLabel("Bitte warten, Daten werden angefordert ...");
    if (form_.Find<toolkit::OptionButton>("optAtomUhr").Value()) {
        client_.Request();
    } else {
        if (!SetByServer()) return;
        Succeeded();
    }
    ShowInLabel("");
    machine_.forms.SetScreenPointer(toolkit::DefaultPointer);
    TellSuccess();
    Start_tmrUhrzeit();
}

bool Synchronization::SetByServer() {
    const Date date =
        GetRemoteDateTime(machine_.network, form_.Find<toolkit::TextBox>("txtSyncServer").Text());
    if (!IsZero(date)) {
        SetLocalClock(machine_.systemClock, date);
        return true;
    }
    machine_.forms.SetScreenPointer(toolkit::DefaultPointer);
    ShowInLabel("");
    machine_.messages.Show(
        "Während der Verbindung zum Server ist ein Fehler aufgetreten. Überprüfen Sie den "
        "Servernamen und ob der Server aktiv ist. Sprechen sie ggf. mit dem Administrator.",
        Exclamation, FailedTitle);
    Start_tmrUhrzeit();
    return false;
}

void Synchronization::Succeeded() {
    machine_.forms.SetScreenPointer(toolkit::DefaultPointer);
    ShowInLabel("");
    TellSuccess();
    Start_tmrUhrzeit();
}

void Synchronization::TellSuccess() {
    machine_.messages.Show("Datum und Uhrzeit erfolgreich synchronisiert!", Information,
                           UpdatedTitle);
}

// At once, since what follows may keep the program busy.
void Synchronization::ShowInLabel(const std::string& text) {
    auto& label = form_.Find<toolkit::Label>("lblDateAndTime");
    label.SetCaption(text);
    if (label.View()) label.View()->PaintNow();
}

void Synchronization::ApplyTimeAnswerChecked(std::string_view answer) {
    const auto seconds = SecondsOfAnswer(answer);
    if (!seconds) {
        client_.answerExpected = false;
        return;
    }
    SetClockFrom1990(machine_.systemClock,
                     *seconds + static_cast<std::int64_t>(std::nearbyint(client_.connectTime)));
    const bool connected = DFUEAktiv(machine_.network);
    if (connected && client_.answerExpected) {
        Succeeded();
        return;
    }
    if (connected) {
        // Without painting it at once, other than below; on purpose.
        form_.Find<toolkit::Label>("lblDateAndTime").SetCaption("");
        machine_.messages.Show(
            "Während der Verbindung ist ein fehler aufgetreten. Versuchen Sie es später erneut.",
            Exclamation, FailedTitle);
    } else {
        ShowInLabel("");
        machine_.messages.Show(
            "Für diese Funktion muss eine Internetverbindung bestehen!\r\n"
            "Bitte stellen Sie eine Verbindung her und starten die Funktion erneut.",
            Exclamation, "DFUE Verbindung kann nicht hergestellt werden");
    }
    machine_.forms.SetScreenPointer(toolkit::DefaultPointer);
    Start_tmrUhrzeit();
}

}  // namespace timesync
