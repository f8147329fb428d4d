#include "platform/tooltips.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "controls/ctooltip.h"

namespace {

using platform::TipTool;
using Handle = platform::ToolTips::Handle;

constexpr std::uint32_t Topmost = 8;
constexpr std::uint32_t OwnBits = 0xFF;
constexpr std::uint32_t Balloons = 0x40;

enum : std::uint32_t { AddTool = 1028, DelTool = 1029, NewToolRect = 1030, GetToolInfo = 1032 };

struct ToolTips {
    contract::TestMachine machine;
    platform::ToolTips& tips = machine.Services().toolTips;
    Handle window = Open();
    Handle control = machine.OpenWindow(contract::StandInClass, "control");

    ~ToolTips() { tips.Destroy(window); }

    Handle Open() {
        tips.InitControls();
        return tips.Create(Topmost, 3);
    }
    void Add(TipTool tool, const char* text) { tips.SendTool(window, AddTool, tool, text); }
    TipTool Whole() const { return {.uFlags = 17, .hwnd = control, .uId = control}; }
    TipTool Item(std::uintptr_t id) const {
        return {.uFlags = 18,
                .hwnd = control,
                .uId = id,
                .left = 1,
                .top = 2,
                .right = 30,
                .bottom = 40};
    }
    TipTool Asked(std::uintptr_t id) {
        TipTool tool{.hwnd = control, .uId = id};
        tips.SendTool(window, GetToolInfo, tool);
        return tool;
    }
    contract::TipLook Look() const { return machine.LookAtTips(window); }
};

}  // namespace

TEST_CASE_FIXTURE(ToolTips, "a tooltip window has the style that it is made with") {
    REQUIRE(window != 0);
    CHECK((tips.WindowStyle(window) & OwnBits) == 3);
}

TEST_CASE_FIXTURE(ToolTips, "the style is set, the balloons on and off") {
    const std::uint32_t before = tips.WindowStyle(window);
    tips.SetWindowStyle(window, before | Balloons);
    CHECK(tips.WindowStyle(window) == (before | Balloons));
    tips.SetWindowStyle(window, before);
    CHECK(tips.WindowStyle(window) == before);
}

TEST_CASE_FIXTURE(ToolTips, "colours, delays and width are set by their messages") {
    tips.Send(window, 1044, 0x112233, 0);
    tips.Send(window, 1043, 0xEEFFFF, 0);
    tips.Send(window, 1027, 2, 2000);
    tips.Send(window, 1027, 3, 1000);
    tips.Send(window, 1048, 0, 300);
    const contract::TipLook look = Look();
    CHECK(look.textColour == 0x112233);
    CHECK(look.backColour == 0xEEFFFF);
    CHECK(look.visibleTime == 2000);
    CHECK(look.delayTime == 1000);
    CHECK(look.width == 300);
}

TEST_CASE_FIXTURE(ToolTips, "a tool is added with its text, letters of the code page included") {
    Add(Whole(), "Größe & Länge");
    CHECK(Look().tools == 1);
    CHECK(machine.TipText(window, control, control) == "Größe & Länge");
}

TEST_CASE_FIXTURE(ToolTips, "a text of 900 characters is kept whole") {
    std::string text;
    while (text.size() < 900) text += "neun Worte zu je zehn ";
    Add(Whole(), text.c_str());
    CHECK(machine.TipText(window, control, control) == text);
}

TEST_CASE_FIXTURE(ToolTips, "the window keeps a copy of the text") {
    std::string text = "vorher";
    Add(Whole(), text.c_str());
    text = "nachher";
    CHECK(machine.TipText(window, control, control) == "vorher");
}

TEST_CASE_FIXTURE(ToolTips, "a tool is found by window and number, and told with flags and place") {
    Add(Item(4), "vier");
    Add(Item(5), "fünf");
    CHECK(Look().tools == 2);
    CHECK(machine.TipText(window, control, 5) == "fünf");
    const TipTool tool = Asked(4);
    CHECK(tool.uFlags == 18);
    CHECK(tool.left == 1);
    CHECK(tool.top == 2);
    CHECK(tool.right == 30);
    CHECK(tool.bottom == 40);
}

TEST_CASE_FIXTURE(ToolTips, "a tool that is not there is told as it was asked") {
    const TipTool tool = Asked(9);
    CHECK(tool.uFlags == 0);
    CHECK(tool.right == 0);
}

TEST_CASE_FIXTURE(ToolTips, "a tool gets another place") {
    Add(Item(4), "vier");
    TipTool tool = Asked(4);
    tool.left = 100;
    tool.bottom = 400;
    tips.SendTool(window, NewToolRect, tool);
    CHECK(Asked(4).left == 100);
    CHECK(Asked(4).right == 30);
    CHECK(Asked(4).bottom == 400);
    CHECK(machine.TipText(window, control, 4) == "vier");
}

TEST_CASE_FIXTURE(ToolTips, "a tool is deleted, and deleting one that is not there is no harm") {
    Add(Whole(), "ganz");
    Add(Item(4), "vier");
    TipTool whole = Whole();
    tips.SendTool(window, DelTool, whole);
    tips.SendTool(window, DelTool, whole);
    CHECK(Look().tools == 1);
    CHECK(machine.TipText(window, control, control) == "");
    CHECK(machine.TipText(window, control, 4) == "vier");
}

TEST_CASE_FIXTURE(ToolTips, "a window with two tips answers with the first") {
    Add(Whole(), "eins");
    Add(Whole(), "zwei");
    CHECK(machine.TipText(window, control, control) == "eins");
}

TEST_CASE_FIXTURE(ToolTips, "a font is made, set and deleted") {
    REQUIRE(tips.VerticalResolution() >= 72);
    const Handle font = tips.MakeFont(-11, {.name = "Tahoma", .italic = true});
    REQUIRE(font != 0);
    tips.Send(window, 48, font, 1);
    CHECK(machine.TipFont(window) == std::pair<int, std::string>{-11, "Tahoma"});
    tips.Send(window, 48, 0, 1);
    tips.DeleteFont(font);
}

TEST_CASE_FIXTURE(ToolTips, "a window that is destroyed has no style any more") {
    tips.Destroy(window);
    CHECK(tips.WindowStyle(window) == 0);
    tips.SetWindowStyle(window, 3);
    tips.Send(window, 1048, 0, 300);
    tips.Destroy(window);
    CHECK(tips.WindowStyle(0) == 0);
}

TEST_CASE_FIXTURE(ToolTips, "the program's tooltip object is a window with its defaults") {
    const controls::cToolTip object(tips);
    const contract::TipLook look = machine.LookAtTips(object.Window());
    CHECK(look == contract::TipLook{.textColour = 0,
                                    .backColour = 0xEEFFFF,
                                    .visibleTime = 2000,
                                    .delayTime = 500,
                                    .width = 300});
}

TEST_CASE_FIXTURE(ToolTips, "the object's window has balloons at first and after each second 1") {
    controls::cToolTip object(tips);
    const auto bits = [&] { return tips.WindowStyle(object.Window()) & OwnBits; };
    CHECK(bits() == 0x43);
    object.SetStyle(controls::cToolTip::Standard);
    CHECK(bits() == 0x03);
    object.SetStyle(controls::cToolTip::Standard);
    CHECK(bits() == 0x43);
    object.SetStyle(controls::cToolTip::Standard);
    object.SetStyle(controls::cToolTip::Balloon);
    CHECK(bits() == 0x43);
}

TEST_CASE_FIXTURE(ToolTips, "the object gives tips to a control and its parts, and takes them") {
    controls::cToolTip object(tips);
    const std::string text(900, 'x');
    object.SetToolTipObj(control, text.c_str());
    object.SetToolTipItem(control, 7, 1, 2, 30, 40, "Größe", true);
    CHECK(machine.TipText(object.Window(), control, control) == text);
    CHECK(machine.TipText(object.Window(), control, 7) == "Größe");
    object.AjustItemRect(control, 7, 10, 20, 31, 41);
    TipTool tool{.hwnd = control, .uId = 7};
    tips.SendTool(object.Window(), GetToolInfo, tool);
    CHECK(tool.left == 10);
    CHECK(tool.bottom == 41);
    CHECK(tool.uFlags == 18);
    object.DelToolTip(control);
    CHECK(machine.LookAtTips(object.Window()).tools == 1);
    object.DelToolTip(control, 7);
    CHECK(machine.LookAtTips(object.Window()).tools == 0);
}

TEST_CASE_FIXTURE(ToolTips, "the object's window and font go with it") {
    Handle gone = 0;
    {
        controls::cToolTip object(tips);
        gone = object.Window();
        object.SetFont({.name = "Tahoma", .size = 9});
        CHECK(object.Font() != 0);
        CHECK(machine.TipFont(gone) ==
              std::pair<int, std::string>{-tips.VerticalResolution() / 8, "Tahoma"});
        REQUIRE(tips.WindowStyle(gone) != 0);
    }
    CHECK(tips.WindowStyle(gone) == 0);
}
