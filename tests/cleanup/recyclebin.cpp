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
    machine.systemFacts.SetSpace('D', {0, 100, 40});
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
    cleanup_test::PaintedLines painted(*this);
    bool hourglass = false;
    bool before = false;
    painted.whenPainted = [&](const std::string&) {
        hourglass = machine.forms.ScreenPointer() == toolkit::Hourglass;
        before = machine.journal.Calls("SHEmptyRecycleBinA").empty();
    };
    Press(platform::message::Yes);
    CHECK(painted.lines == Lines{"Lösche Papierkorb von Laufwerk 'd:' ..."});
    CHECK(hourglass);
    CHECK(before);
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

TEST_CASE_FIXTURE(Bin, "a question about the bin that cannot be shown empties nothing") {
    machine.faults.FailOn(TitleOfD, 7);
    frame.cmdCleanBinDirect.Press();
    CHECK(machine.journal.Calls("SHEmptyRecycleBinA").empty());
    CHECK(machine.shell.recycleBin.size() == 2);
    CHECK(frame.lblHinweisTemp.Caption() == "before");
    CHECK(form.Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Bin, "a bin that cannot be emptied is no failure") {
    machine.faults.FailAll("SHEmptyRecycleBinA", 5);
    Press(platform::message::Yes);
    CHECK(frame.lblScannedFiles.Caption().ends_with("abgeschlossen!"));
}
