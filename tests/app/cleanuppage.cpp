#include <doctest/doctest.h>

#include "app/program.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"
#include "toolkit/progressbar.h"

using namespace app_test;

namespace {

std::string CaptionOf(const Program& program, const char* label) {
    return program.form->Find<toolkit::Label>(label).Caption();
}

controls::chameleonButton& Button(const Program& program, const char* name) {
    return program.form->Find<controls::chameleonButton>(name);
}

}  // namespace

TEST_CASE("the start lists the Internet cache, and what is listed can be deleted") {
    Program program;
    program.machine.internetCache.Add({.url = "http://a/"});
    program.machine.internetCache.Add({.url = "Cookie:b"});
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::ListBox>("List1").Items() ==
          std::vector<std::string>{"http://a/", "Cookie:b"});
    CHECK(Button(program, "cmdClearIECache").Enabled());
    const auto& bar = program.form->Find<toolkit::ProgressBar>("prgbarIE1");
    CHECK(bar.Minimum() == 0);
    CHECK(bar.Maximum() == 100);
    CHECK(bar.Value() == 0);
}

TEST_CASE("an empty Internet cache leaves nothing to delete") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::ListBox>("List1").Items().empty());
    CHECK_FALSE(Button(program, "cmdClearIECache").Enabled());
}

TEST_CASE("the start selects the drive of Windows and shows its size") {
    Program program;
    program.machine.systemInformation.drives = {{"A:\\", platform::DriveKind::Removable},
                                                {"C:\\", platform::DriveKind::Fixed},
                                                {"D:\\", platform::DriveKind::Fixed}};
    program.machine.systemFacts.windowsDirectory = "D:\\WINDOWS";
    program.machine.systemFacts.SetSpace('D', {0, 1000, 400});
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::DriveListBox>("drvSelect").Drive() == "d:");
    CHECK(CaptionOf(program, "lblGesamt") == "Gesamt: 1.000 Bytes");
    CHECK(CaptionOf(program, "lblFreeDriveSpace") == "Belegt: 600 Bytes");
}

TEST_CASE("a drive that cannot be selected or measured does not keep the program from starting") {
    Program program;
    program.machine.systemFacts.windowsDirectory = "";
    REQUIRE(program.Start());
    CHECK(CaptionOf(program, "lblFreeDriveSpace") == "Belegt: 0 Bytes");
    CHECK(program.form->Visible());
}

TEST_CASE("the list of temp files has its four columns, and nothing to delete at first") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.form->Find<toolkit::ListView>("lvwFiles").Columns() ==
          std::vector<std::string>{"Name", "Größe (bytes)", "Typ", "Zuletzt geändert"});
    CHECK_FALSE(Button(program, "cmdCleanTempFiles").Enabled());
    CHECK(Button(program, "cmdSearchTempFiles").Caption() == "Suchen");
}
