#include <doctest/doctest.h>

#include "cleanup/fixture.h"

using cleanup_test::Fixture;
using cleanup_test::Lines;
using platform::simulated::ShownMessage;

namespace {

constexpr auto TitleOfD = "Papierkorb von Laufwerk 'd:' löschen";

struct Bin : Fixture {
    Bin() {
        frame.drvSelect.SetDrive("D:\\");
        machine.shell.recycleBin = {"C:\\a", "D:\\b"};
        frame.lblHinweisTemp.SetCaption("before");
    }
    void Press(int answer) {
        machine.messages.Answer(TitleOfD, answer);
        machine.journal.Clear();
        frame.cmdCleanBinDirect.Press();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bin, "after Yes the bins of all drives are empty, though one drive is named") {
    machine.facts.SetSpace('D', {0, 100, 40});
    Press(platform::message::Yes);
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{{TitleOfD, "Inhalt des Papierkorbes löschen?", 36}});
    CHECK(machine.journal.Calls("SHEmptyRecycleBinA") == Lines{"SHEmptyRecycleBinA 0x01"});
    CHECK(machine.shell.recycleBin.empty());
    CHECK(frame.lblHinweisTemp.Caption() == "");
    CHECK(frame.lblScannedFiles.Caption() ==
          "Löschen des Papierkorbs von Laufwerk 'd:' abgeschlossen!");
    CHECK(frame.lblFreeDriveSpace.Caption() == "Belegt: 60 Bytes");
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Bin, "while the bins are emptied the hourglass and a painted line say so") {
    struct Painting final : toolkit::ControlView {
        Painting(Bin& bin) : on(bin) { on.frame.lblScannedFiles.SetView(this); }
        ~Painting() override { on.frame.lblScannedFiles.SetView(nullptr); }
        void PaintNow() override {
            painted.push_back(on.frame.lblScannedFiles.Caption());
            hourglass = on.machine.forms.ScreenPointer() == toolkit::Hourglass;
            before = on.machine.journal.Calls("SHEmptyRecycleBinA").empty();
        }
        void Refresh(toolkit::Aspect) override {}
        void Repaint() override {}
        bool PointerIsOver() const override { return false; }
        void TakeFocus() override {}
        void CaptureMouse() override {}
        void MoveFocus(bool) override {}

        Bin& on;
        Lines painted;
        bool hourglass = false;
        bool before = false;
    } painting(*this);
    Press(platform::message::Yes);
    CHECK(painting.painted == Lines{"Lösche Papierkorb von Laufwerk 'd:' ..."});
    CHECK(painting.hourglass);
    CHECK(painting.before);
}

TEST_CASE_FIXTURE(Bin, "emptying the bins takes no hourglass of the form's own away") {
    form.SetPointer(toolkit::Hourglass);
    Press(platform::message::Yes);
    CHECK(machine.shell.recycleBin.empty());
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
    CHECK(form.ShownPointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Bin, "any answer but Yes leaves bins and labels as they are") {
    for (int answer : {platform::message::No, platform::message::Cancel}) {
        Press(answer);
        CHECK(machine.journal.Calls("SHEmptyRecycleBinA").empty());
        CHECK(machine.shell.recycleBin.size() == 2);
        CHECK(frame.lblHinweisTemp.Caption() == "before");
    }
}

TEST_CASE_FIXTURE(Bin, "a bin that cannot be emptied is no failure") {
    machine.faults.FailAll("SHEmptyRecycleBinA", 5);
    Press(platform::message::Yes);
    CHECK(frame.lblScannedFiles.Caption().ends_with("abgeschlossen!"));
}
