#pragma once

#include <string>
#include <vector>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "timesync/synchronization.h"
#include "timesync/synchronizeframe.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace timesync_test {

using Lines = std::vector<std::string>;
using platform::LocalTime;
using platform::simulated::ServerAnswer;
using platform::simulated::ShownMessage;

inline const ShownMessage Success{"Einstellungen aktualisiert",
                                  "Datum und Uhrzeit erfolgreich synchronisiert!", 64};
inline const ShownMessage ServerFailure{
    "Fehler beim synchronisieren",
    "Während der Verbindung zum Server ist ein Fehler aufgetreten. Überprüfen Sie den Servernamen "
    "und ob der Server aktiv ist. Sprechen sie ggf. mit dem Administrator.",
    48};

// Notes in the journal what the label shows when it is painted at once.
struct LabelWatch final : toolkit::ControlView {
    LabelWatch(toolkit::Label& watched, platform::simulated::Journal& into)
        : label(watched), journal(into) {
        label.SetView(this);
    }
    ~LabelWatch() override { label.SetView(nullptr); }

    void Refresh(toolkit::Aspect) override {}
    void Repaint() override {}
    void PaintNow() override {
        journal.Note([&] { return "Label \"" + label.Caption() + '"'; });
    }
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

    toolkit::Label& label;
    platform::simulated::Journal& journal;
};

// The frame on a form of its own, its clock running, the time server chosen.
struct Frame {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    timesync::Synchronization synchronization{form, machine.services};
    std::unique_ptr<LabelWatch> labelWatch;

    Frame() {
        timesync::AddSynchronizeFrame(form, machine.clock);
        labelWatch = std::make_unique<LabelWatch>(form.Find<toolkit::Label>("lblDateAndTime"),
                                                  machine.journal);
        form.Find<toolkit::OptionButton>("optAtomUhr").SetValue(true);
        synchronization.Start_tmrUhrzeit();
        machine.journal.Clear();
    }

    const Lines& lines = machine.journal.Lines();

    const std::string& Label() const {
        return form.Find<toolkit::Label>("lblDateAndTime").Caption();
    }
    bool Runs() const { return machine.clock.RunningTimers() == 1; }
    void Press() { synchronization.cmdSynchronizeDateTime_Click(); }
    const std::vector<ShownMessage>& Shown() const { return machine.messages.Shown(); }

    void UseServer(const char* name) {
        form.Find<toolkit::OptionButton>("optSynServer").SetValue(true);
        form.Find<toolkit::TextBox>("txtSyncServer").SetText(name);
        machine.journal.Clear();
    }
    Lines ClockCalls() const {
        Lines calls;
        for (const std::string& line : lines) {
            if (line.starts_with("SetSystemTime") || line.starts_with("SetLocal")) {
                calls.push_back(line);
            }
        }
        return calls;
    }
};

}  // namespace timesync_test
