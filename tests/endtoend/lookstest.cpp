#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/lines.h"
#include "endtoend/looks.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

// One line for each rule of which the window breaks one.
bool Names(const std::vector<std::string>& lines, const std::string& one, const std::string& two) {
    for (const std::string& line : lines) {
        const bool both =
            line.find(one) != std::string::npos && line.find(two) != std::string::npos;
        if (both) return true;
    }
    return false;
}

TEST_CASE("nothing is crooked in a window that keeps to the rules") {
    const Program program(OwnFolder() + "\\crooked.exe", "straight");
    CHECK(Joined(Crooked(program, program.Wait("frmStraight"))) == "");
}

TEST_CASE("each broken rule of a crooked window is found, all at once") {
    const Program program(OwnFolder() + "\\crooked.exe", "crooked");
    const HWND form = program.Wait("frmCrooked");
    const std::vector<std::string> lines = Crooked(program, form);
    const std::string all = Joined(lines);
    CAPTURE(all);
    CHECK(CutCaptions(form).size() == 2);
    CHECK(Names(lines, "chkSecond", "is cut"));
    CHECK(Names(lines, "lblLong", "is cut"));
    CHECK(Overlaps(form).size() == 1);
    CHECK(Names(lines, "lblName", "overlaps txtName"));
    CHECK(OutsideOfForm(form).size() == 1);
    CHECK(Names(lines, "cmdDone", "stands out"));
    CHECK(DoubleAccessKeys(form).size() == 1);
    CHECK(Names(lines, "chkFirst and chkSecond", "access key E"));
    CHECK(Names(lines, "the tabulator reaches chkFirst", "before chkSecond"));
    CHECK(Names(lines, "the tabulator does not reach", "chkLost"));
    CHECK(lines.size() == 7);
}

TEST_CASE("every page of the main window can be read and reached") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const HWND form = program.Find("frmMain");
    for (int page = 0; page < 8; ++page) {
        program.OpenTab(page);
        CAPTURE(page);
        CHECK(Joined(Crooked(program, form)) == "");
    }
}

TEST_CASE("the warning can be read and reached") {
    const Workplace workplace(Workplace::Warning::Fresh);
    const Program program(workplace.Executable());
    CHECK(Joined(Crooked(program, program.Wait("frmFirstInfo"))) == "");
}

TEST_CASE("the password dialog can be read and reached") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.SetChecked("chkAutoLogin", true);
    program.SetText("txtALPassword", "x");
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    CHECK(Joined(Crooked(program, program.Wait("frmPassword"))) == "");
}

}  // namespace
}  // namespace endtoend
