#include "controls/ctooltip.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <vector>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

using controls::cToolTip;
using Lines = std::vector<std::string>;

constexpr std::uint32_t BalloonBit = 0x40;
constexpr cToolTip::Handle Control = 700;

struct Tips {
    platform::simulated::Machine machine;
    cToolTip tips{machine.services.toolTips};

    Tips() { machine.journal.Clear(); }

    const platform::simulated::ToolTips::Window& Window() const { return machine.toolTips.At(1); }
    const platform::simulated::ToolTips::Tool& Tool(std::uintptr_t id = Control) const {
        const auto* tool = Window().Find(Control, id);
        REQUIRE(tool);
        return *tool;
    }
    bool ShowsBalloons() const { return (Window().style & BalloonBit) != 0; }
    const Lines& Journal() const { return machine.journal.Lines(); }
};

}  // namespace

TEST_CASE("the window is made first and then gets the defaults, one by one") {
    platform::simulated::Machine machine;
    const cToolTip tips(machine.services.toolTips);
    CHECK(machine.journal.Lines() ==
          Lines{"InitCommonControlsEx",
                "CreateWindowExA \"tooltips_class32\" ex 0x08 style 0x03 -> #1",
                "GetWindowLongA #1 GWL_STYLE -> 0x03", "SetWindowLongA #1 GWL_STYLE 0x43",
                "SendMessageA #1 1048 0 300", "SendMessageA #1 1043 15663103 0",
                "SendMessageA #1 1044 0 0", "SendMessageA #1 1027 3 500",
                "SendMessageA #1 1027 2 2000"});
}

TEST_CASE_FIXTURE(Tips, "a fresh object tells its defaults and has no font") {
    CHECK(tips.Style() == cToolTip::Standard);
    CHECK(tips.TipWidth() == 300);
    CHECK(tips.BkColor() == 0xEEFFFF);
    CHECK(tips.TxtColor() == 0);
    CHECK(tips.DelayTime() == 500);
    CHECK(tips.VisibleTime() == 2000);
    CHECK(tips.Font() == 0);
}

TEST_CASE_FIXTURE(Tips, "each property is stored and told to the window") {
    tips.SetTxtColor(0x112233);
    tips.SetBkColor(255);
    tips.SetVisibleTime(3320000);
    tips.SetDelayTime(1000);
    tips.SetTipWidth(120);
    CHECK(tips.TxtColor() == 0x112233);
    CHECK(tips.BkColor() == 255);
    CHECK(tips.VisibleTime() == 3320000);
    CHECK(tips.DelayTime() == 1000);
    CHECK(tips.TipWidth() == 120);
    CHECK(Journal() == Lines{"SendMessageA #1 1044 1122867 0", "SendMessageA #1 1043 255 0",
                             "SendMessageA #1 1027 2 3320000", "SendMessageA #1 1027 3 1000",
                             "SendMessageA #1 1048 0 120"});
}

TEST_CASE_FIXTURE(Tips, "a property set to the value that it has is told to the window again") {
    tips.SetDelayTime(500);
    tips.SetTipWidth(300);
    CHECK(Journal() == Lines{"SendMessageA #1 1027 3 500", "SendMessageA #1 1048 0 300"});
}

TEST_CASE_FIXTURE(Tips, "a negative number reaches the window in 32 bits") {
    tips.SetTipWidth(-1);
    CHECK(tips.TipWidth() == -1);
    CHECK(Journal() == Lines{"SendMessageA #1 1048 0 4294967295"});
}

TEST_CASE_FIXTURE(Tips, "the visible time keeps its fraction and is told as the nearest even one") {
    for (const auto& [time, told] : {std::pair{2000.5, 2000U}, {2001.5, 2002U}, {2000.6, 2001U}}) {
        tips.SetVisibleTime(time);
        CHECK(tips.VisibleTime() == time);
        CHECK(Window().visibleTime == told);
    }
}

TEST_CASE_FIXTURE(Tips, "a visible time beyond 32 bits is an overflow") {
    CHECK_NOTHROW(tips.SetVisibleTime(2147483647));
    CHECK(FailureOf([&] { tips.SetVisibleTime(2147483648.0); }) == runtime::Overflow);
    CHECK(FailureOf([&] { tips.SetVisibleTime(-2147483649.0); }) == runtime::Overflow);
    CHECK(FailureOf([&] { tips.SetVisibleTime(std::numeric_limits<double>::quiet_NaN()); }) ==
          runtime::Overflow);
    CHECK(Window().visibleTime == 2147483647);
}

TEST_CASE_FIXTURE(Tips, "a fresh object shows balloons although its style says Standard") {
    CHECK(tips.Style() == cToolTip::Standard);
    CHECK(ShowsBalloons());
}

TEST_CASE_FIXTURE(Tips, "each assignment of Standard turns the balloons over") {
    for (const bool balloons : {false, true, false, true}) {
        tips.SetStyle(cToolTip::Standard);
        CHECK(tips.Style() == 1);
        CHECK(ShowsBalloons() == balloons);
    }
}

TEST_CASE_FIXTURE(Tips, "Balloon sets the balloons, however often") {
    tips.SetStyle(cToolTip::Standard);
    REQUIRE_FALSE(ShowsBalloons());
    for (int i = 0; i < 2; ++i) {
        tips.SetStyle(cToolTip::Balloon);
        CHECK(tips.Style() == 2);
        CHECK(ShowsBalloons());
    }
    tips.SetStyle(cToolTip::Standard);
    CHECK_FALSE(ShowsBalloons());
}

TEST_CASE_FIXTURE(Tips, "Standard looks at the bit 0x02 of the window and leaves it else alone") {
    machine.services.toolTips.SetWindowStyle(1, 0x41);
    tips.SetStyle(cToolTip::Standard);
    CHECK(Window().style == 0x41);
    machine.services.toolTips.SetWindowStyle(1, 0x84000002);
    tips.SetStyle(cToolTip::Standard);
    CHECK(Window().style == 0x84000042);
}

TEST_CASE_FIXTURE(Tips, "the style is read and written back, the other bits as they were") {
    tips.SetStyle(cToolTip::Balloon);
    tips.SetStyle(7);
    CHECK(tips.Style() == 7);
    CHECK(Journal() ==
          Lines{"GetWindowLongA #1 GWL_STYLE -> 0x43", "SetWindowLongA #1 GWL_STYLE 0x43",
                "GetWindowLongA #1 GWL_STYLE -> 0x43", "SetWindowLongA #1 GWL_STYLE 0x43"});
}

TEST_CASE_FIXTURE(Tips, "a control's tip is a tool of its window, by its window") {
    tips.SetToolTipObj(Control, "Größe");
    tips.SetToolTipObj(Control + 1, "Mitte", true);
    CHECK(Journal() ==
          Lines{"SendMessageA #1 1028 size 40 flags 17 window 700 id 700 rect 0 0 0 0 \"Größe\"",
                "SendMessageA #1 1028 size 40 flags 19 window 701 id 701 rect 0 0 0 0 \"Mitte\""});
    CHECK(Tool().text == "Größe");
}

TEST_CASE_FIXTURE(Tips, "a part's tip is a tool by its number, with its rectangle") {
    tips.SetToolTipItem(Control, 3, 1, 2, 30, 40, "Teil");
    tips.SetToolTipItem(Control, 0, -1, -2, 5, 6, "Mitte", true);
    CHECK(Journal() ==
          Lines{"SendMessageA #1 1028 size 40 flags 16 window 700 id 3 rect 1 2 30 40 \"Teil\"",
                "SendMessageA #1 1028 size 40 flags 18 window 700 id 0 rect -1 -2 5 6 \"Mitte\""});
}

TEST_CASE_FIXTURE(Tips, "two tips on one control are both told to the window") {
    tips.SetToolTipObj(Control, "eins");
    tips.SetToolTipObj(Control, "zwei");
    CHECK(Window().tools.size() == 2);
}

TEST_CASE_FIXTURE(Tips, "a text of any length goes by its pointer, and the record keeps its size") {
    const std::string text(5000, 'x');
    tips.SetToolTipObj(Control, text.c_str());
    CHECK(Tool().text == text);
    CHECK(Tool().record.cbSize == 40);
}

TEST_CASE_FIXTURE(Tips, "a tip is deleted by its control, a part's by its number") {
    tips.SetToolTipObj(Control, "ganz");
    tips.SetToolTipItem(Control, 0, 0, 0, 1, 1, "Teil 0");
    tips.SetToolTipItem(Control, 1, 0, 0, 1, 1, "Teil 1");
    machine.journal.Clear();
    tips.DelToolTip(Control, 0);
    tips.DelToolTip(Control);
    tips.DelToolTip(Control, -5);
    CHECK(Journal() ==
          Lines{"SendMessageA #1 1029 size 40 flags 0 window 700 id 0 rect 0 0 0 0",
                "SendMessageA #1 1029 size 40 flags 0 window 700 id 700 rect 0 0 0 0",
                "SendMessageA #1 1029 size 40 flags 0 window 700 id 700 rect 0 0 0 0"});
    REQUIRE(Window().tools.size() == 1);
    CHECK(Window().tools[0].text == "Teil 1");
}

TEST_CASE_FIXTURE(Tips, "a part is moved with what the window knows of it") {
    tips.SetToolTipItem(Control, 4, 1, 2, 3, 4, "Teil", true);
    machine.journal.Clear();
    tips.AjustItemRect(Control, 4, 10, 20, 30, 40);
    CHECK(Journal() ==
          Lines{"SendMessageA #1 1032 size 40 flags 0 window 700 id 4 rect 0 0 0 0",
                "SendMessageA #1 1030 size 40 flags 18 window 700 id 4 rect 10 20 30 40"});
    CHECK(Tool(4).record.right == 30);
    CHECK(Tool(4).text == "Teil");
}

TEST_CASE_FIXTURE(Tips, "moving a part that is not there changes nothing") {
    tips.SetToolTipItem(Control, 4, 1, 2, 3, 4, "Teil");
    tips.AjustItemRect(Control, 5, 10, 20, 30, 40);
    CHECK(Window().tools.size() == 1);
    CHECK(Tool(4).record.left == 1);
}

TEST_CASE_FIXTURE(Tips, "a font is made from its properties and set with a new picture") {
    tips.SetFont({.name = "Tahoma",
                  .size = 8.25,
                  .weight = 700,
                  .italic = true,
                  .underline = true,
                  .strikethrough = true});
    CHECK(Journal() == Lines{"GetDeviceCaps 90 -> 96",
                             "CreateFontIndirectA \"Tahoma\" height -11 weight 700 italic "
                             "underline strikeout -> #2",
                             "SendMessageA #1 48 2 1"});
    CHECK(tips.Font() == 2);
    CHECK(Window().font == 2);
}

TEST_CASE_FIXTURE(Tips, "a font's height is its size at 96 dots to the inch, below zero") {
    // Half a point goes to the even neighbour.
    for (const auto& [size, height] : {std::pair{8.0, "-11"},
                                       {9.0, "-12"},
                                       {10.0, "-13"},
                                       {10.5, "-13"},
                                       {11.5, "-16"},
                                       {72.0, "-96"}}) {
        machine.journal.Clear();
        tips.SetFont({.name = "Tahoma", .size = size});
        CHECK(Journal()[1].find(std::string("height ") + height + " weight 400 ->") !=
              std::string::npos);
    }
}

TEST_CASE_FIXTURE(Tips, "a font goes once another one is set in its place") {
    tips.SetFont({.name = "Tahoma"});
    machine.journal.Clear();
    tips.SetFont({.name = "Arial"});
    const Lines& lines = Journal();
    REQUIRE(lines.size() == 4);
    CHECK(lines[2] == "SendMessageA #1 48 3 1");
    CHECK(lines[3] == "DeleteObject #2");
    CHECK(machine.toolTips.OpenFonts() == 1);
}

TEST_CASE("the window goes with the object, and then the font") {
    platform::simulated::Machine machine;
    {
        cToolTip tips(machine.services.toolTips);
        tips.SetFont({.name = "Tahoma"});
        machine.journal.Clear();
    }
    CHECK(machine.journal.Lines() == Lines{"DestroyWindow #1", "DeleteObject #2"});
    CHECK(machine.toolTips.OpenWindows() == 0);
    CHECK(machine.toolTips.OpenFonts() == 0);
}

TEST_CASE("without a font of its own the object gives back its window only") {
    platform::simulated::Machine machine;
    {
        const cToolTip tips(machine.services.toolTips);
        machine.journal.Clear();
    }
    CHECK(machine.journal.Lines() == Lines{"DestroyWindow #1"});
}

TEST_CASE("an object whose window cannot be made keeps its properties and shows nothing") {
    platform::simulated::Machine machine;
    machine.faults.FailAll("CreateWindowExA", 8);
    cToolTip tips(machine.services.toolTips);
    tips.SetToolTipObj(Control, "Text");
    tips.SetStyle(cToolTip::Balloon);
    CHECK(tips.Style() == cToolTip::Balloon);
    CHECK(tips.TipWidth() == 300);
    CHECK(machine.toolTips.OpenWindows() == 0);
}
