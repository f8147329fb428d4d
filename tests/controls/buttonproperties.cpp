#include <doctest/doctest.h>

#include "controls/watchedbutton.h"

using controls::ButtonProperties;
using controls::chameleonButton;
using controls::Persisted;
using controls::PropertyStore;
using controls_test::TestPicture;
using controls_test::WatchedButton;
using toolkit::SystemColour;
using Keys = std::vector<std::string>;

namespace {

const Keys AllKeys{"BTYPE", "TX",     "ENAB",  "FONT", "COLTYPE", "FOCUSR", "BCOL", "BCOLO",
                   "FCOL",  "FCOLO",  "MCOL",  "MPTR", "MICON",   "PICN",   "PICH", "UMCOL",
                   "SOFT",  "PICPOS", "NGREY", "FX",   "HAND",    "CHECK",  "VALUE"};

Keys KeysOf(const PropertyStore& store) {
    Keys keys;
    for (const auto& entry : store.Entries()) keys.push_back(entry.key);
    return keys;
}

ButtonProperties Read(const char* lines) {
    return controls::ReadButtonProperties(PropertyStore(lines));
}

toolkit::SharedPicture TestIcon() {
    return std::make_shared<TestPicture>(toolkit::Picture::Kind::Icon, toolkit::Size{16, 16}, "i");
}

void CheckDefaults(const ButtonProperties& p) {
    CHECK(p.buttonType == 2);
    CHECK(p.enabled);
    CHECK(p.font.name == "");
    CHECK(p.colorScheme == 1);
    CHECK(p.showFocusRect);
    CHECK(p.backColor == SystemColour(15));
    CHECK(p.backOver == SystemColour(15));
    CHECK(p.foreColor == SystemColour(18));
    CHECK(p.foreOver == SystemColour(18));
    CHECK(p.maskColor == 0xC0C0C0);
    CHECK(p.mousePointer == 0);
    CHECK_FALSE(p.mouseIcon);
    CHECK_FALSE(p.pictureNormal);
    CHECK_FALSE(p.pictureOver);
    CHECK(p.useMaskColor);
    CHECK_FALSE(p.softBevel);
    CHECK(p.picturePosition == 0);
    CHECK_FALSE(p.normalGrey);
    CHECK(p.specialEffect == 0);
    CHECK_FALSE(p.handPointer);
    CHECK_FALSE(p.checkBoxBehaviour);
    CHECK_FALSE(p.value);
}

}  // namespace

TEST_CASE("a store without any key gives every property its default") {
    const ButtonProperties read = Read("");
    CheckDefaults(read);
    CHECK(read.caption == "");
}

TEST_CASE("a new button has every default, and its name for a caption") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmTest", "", {});
    const auto& button = form.Add<chameleonButton>("cmdTest", machine.clock);
    CheckDefaults(button.Properties());
    CHECK(button.Caption() == "cmdTest");
    CHECK(button.Properties().caption == "cmdTest");
    CHECK(button.hwnd() == nullptr);
}

TEST_CASE("all properties are written under their keys, in their order") {
    WatchedButton test;
    PropertyStore store;
    test.button.WriteProperties(store);
    CHECK(KeysOf(store) == AllKeys);
}

TEST_CASE("a default is written too, in its own way") {
    WatchedButton test;
    PropertyStore store;
    test.button.WriteProperties(store);
    CHECK(store.Find("BTYPE")->text == "2");
    CHECK(store.Find("TX")->text == "Test");
    CHECK(store.Find("ENAB")->text == "-1");
    CHECK(store.Find("FONT")->text == "");
    CHECK(store.Find("BCOL")->text == "&H8000000F");
    CHECK(store.Find("MCOL")->text == "&H00C0C0C0");
    CHECK(store.Find("VALUE")->text == "0");
    CHECK_FALSE(store.Find("PICN")->picture);
}

TEST_CASE("what a button writes, another one reads") {
    const auto over = TestIcon();
    const auto normal = TestIcon();
    const auto icon = TestIcon();
    ButtonProperties given{.buttonType = 14,
                           .caption = "&Größe",
                           .enabled = false,
                           .font = {"Tahoma", 11, true, false, true},
                           .colorScheme = 3,
                           .showFocusRect = false,
                           .backColor = 0x123456,
                           .backOver = SystemColour(5),
                           .foreColor = 0xFF,
                           .foreOver = 0xFFFFFF,
                           .maskColor = 0xFF00FF,
                           .mousePointer = 99,
                           .mouseIcon = icon,
                           .pictureNormal = normal,
                           .pictureOver = over,
                           .useMaskColor = false,
                           .softBevel = true,
                           .picturePosition = 3,
                           .normalGrey = true,
                           .specialEffect = -2,
                           .handPointer = true,
                           .checkBoxBehaviour = true,
                           .value = true};
    PropertyStore store;
    controls::WriteButtonProperties(store, given);
    const ButtonProperties read = controls::ReadButtonProperties(store);
    CHECK(read.buttonType == 14);
    CHECK(read.caption == "&Größe");
    CHECK_FALSE(read.enabled);
    CHECK(read.font == given.font);
    CHECK(read.colorScheme == 3);
    CHECK_FALSE(read.showFocusRect);
    CHECK(read.backColor == 0x123456);
    CHECK(read.backOver == SystemColour(5));
    CHECK(read.foreColor == 0xFF);
    CHECK(read.foreOver == 0xFFFFFF);
    CHECK(read.maskColor == 0xFF00FF);
    CHECK(read.mousePointer == 99);
    CHECK(read.mouseIcon == icon);
    CHECK(read.pictureNormal == normal);
    CHECK(read.pictureOver == over);
    CHECK_FALSE(read.useMaskColor);
    CHECK(read.softBevel);
    CHECK(read.picturePosition == 3);
    CHECK(read.normalGrey);
    CHECK(read.specialEffect == -2);
    CHECK(read.handPointer);
    CHECK(read.checkBoxBehaviour);
    CHECK(read.value);
}

TEST_CASE("every colour comes back from a store as it was written") {
    for (const toolkit::Colour colour :
         {0u, 0x7FFFu, 0x8000u, 0xFF00u, 0xFFFFu, 0x10000u, 0xFFFFFFu, SystemColour(15)}) {
        CAPTURE(colour);
        ButtonProperties given;
        given.backColor = colour;
        given.foreOver = colour;
        given.maskColor = colour;
        PropertyStore store;
        controls::WriteButtonProperties(store, given);
        const ButtonProperties read = controls::ReadButtonProperties(store);
        CHECK(read.backColor == colour);
        CHECK(read.foreOver == colour);
        CHECK(read.maskColor == colour);
    }
}

TEST_CASE("a truth value may be spelt out") {
    CHECK_FALSE(Read("ENAB=False").enabled);
    CHECK(Read("HAND=True").handPointer);
}

TEST_CASE("without BCOLO the background under the mouse is the BackColor just read") {
    CHECK(Read("BCOL=&H123456").backOver == 0x123456);
    CHECK(Read("BCOL=&H123456\nBCOLO=&H654321").backOver == 0x654321);
}

TEST_CASE("without FCOLO the text under the mouse has the ForeColor just read") {
    CHECK(Read("FCOL=255").foreOver == 255);
    CHECK(Read("FCOL=255\nFCOLO=1").foreOver == 1);
}

TEST_CASE("PICH gives PictureOver, and PICO is never read") {
    const auto first = TestIcon();
    PropertyStore store;
    store.Write("PICO", "", first);
    CHECK_FALSE(controls::ReadButtonProperties(store).pictureOver);
    store.Write("PICH", "", first);
    CHECK(controls::ReadButtonProperties(store).pictureOver == first);
}

TEST_CASE("what a property cannot be leaves its default") {
    const ButtonProperties read =
        Read("BTYPE=viele\nCOLTYPE=40000\nENAB=ja\nMCOL=blau\nPICPOS=-40000\nVALUE=");
    CHECK(read.buttonType == 2);
    CHECK(read.colorScheme == 1);
    CHECK(read.enabled);
    CHECK(read.maskColor == 0xC0C0C0);
    CHECK(read.picturePosition == 0);
    CHECK_FALSE(read.value);
}

TEST_CASE("a font is kept as name, points and the letters of its style") {
    CHECK(Read("FONT=Tahoma").font == toolkit::Font{"Tahoma", 8});
    CHECK(Read("FONT=Arial;12").font == toolkit::Font{"Arial", 12});
    CHECK(Read("FONT=Arial;12;i").font == toolkit::Font{"Arial", 12, false, true, false});
    CHECK(Read("FONT=Arial;viel;bu").font == toolkit::Font{"Arial", 8, true, false, true});
}

TEST_CASE("each setter stores, and announces its property under the key's name") {
    WatchedButton test;
    Keys announced;
    test.button.onPropertyChanged = [&](const char* key) { announced.emplace_back(key); };
    test.button.SetButtonType(5);
    test.button.SetCaption("anders");
    test.button.SetEnabled(false);
    test.button.SetFont({"Arial", 10});
    test.button.SetColorScheme(2);
    test.button.SetShowFocusRect(false);
    test.button.SetBackColor(1);
    test.button.SetBackOver(2);
    test.button.SetForeColor(3);
    test.button.SetForeOver(4);
    test.button.SetMaskColor(5);
    test.button.SetMousePointer(6);
    test.button.SetMouseIcon(TestIcon());
    test.button.SetPictureNormal(TestIcon());
    test.button.SetPictureOver(TestIcon());
    test.button.SetUseMaskColor(false);
    test.button.SetSoftBevel(true);
    test.button.SetPicturePosition(1);
    test.button.SetNormalGrey(true);
    test.button.SetSpecialEffect(2);
    test.button.SetHandPointer(true);
    test.button.SetCheckBoxBehaviour(true);
    test.button.SetValue(true);
    Keys expected = AllKeys;
    expected[14] = "PICO";
    CHECK(announced == expected);

    PropertyStore store;
    test.button.WriteProperties(store);
    Keys texts;
    for (const auto& entry : store.Entries()) texts.push_back(entry.text);
    CHECK(texts == Keys{"5",          "anders",     "0",          "Arial;10;",  "2",          "0",
                        "&H00000001", "&H00000002", "&H00000003", "&H00000004", "&H00000005", "6",
                        "",           "",           "",           "0",          "-1",         "1",
                        "-1",         "2",          "-1",         "-1",         "-1"});
    for (const char* key : {"MICON", "PICN", "PICH"}) CHECK(store.Find(key)->picture);
}

TEST_CASE("a property is announced also when it is set to what it was") {
    WatchedButton test;
    Keys announced;
    test.button.onPropertyChanged = [&](const char* key) { announced.emplace_back(key); };
    test.button.SetSoftBevel(false);
    CHECK(announced == Keys{"SOFT"});
}

TEST_CASE("a caption that the window tells back is not announced again") {
    WatchedButton test;
    Keys announced;
    test.button.onPropertyChanged = [&](const char* key) { announced.emplace_back(key); };
    test.button.SetCaption("anders");
    test.button.SetCaption("anders");
    CHECK(announced == Keys{"TX"});
}

TEST_CASE("reading a store announces nothing, and draws the button anew") {
    WatchedButton test;
    Keys announced;
    test.button.onPropertyChanged = [&](const char* key) { announced.emplace_back(key); };
    const int repaints = test.view.repaints;
    test.button.ReadProperties(PropertyStore("TX=gelesen\nENAB=0\nCHECK=-1"));
    CHECK(announced.empty());
    CHECK(test.view.repaints > repaints);
    CHECK(test.button.Caption() == "gelesen");
    CHECK_FALSE(test.button.Enabled());
    CHECK(test.button.Properties().checkBoxBehaviour);
    test.button.SetValue(true);
    CHECK(announced == Keys{"VALUE"});
}

TEST_CASE("a store that could not be read to its end leaves the button able to announce") {
    WatchedButton test;
    Keys announced;
    test.button.onPropertyChanged = [&](const char* key) { announced.emplace_back(key); };
    test.view.fails = true;
    CHECK_THROWS(test.button.ReadProperties(PropertyStore("TX=gelesen")));
    test.view.fails = false;
    test.button.SetValue(true);
    CHECK(announced == Keys{"VALUE"});
}

TEST_CASE("what only the mouse's picture depends on is not drawn anew") {
    WatchedButton test;
    const int repaints = test.view.repaints;
    test.button.SetMousePointer(2);
    test.button.SetMouseIcon(TestIcon());
    test.button.SetHandPointer(true);
    CHECK(test.view.repaints == repaints);
}

TEST_CASE("every other property is drawn anew") {
    WatchedButton test;
    const auto redraws = [&](auto set) {
        const int before = test.view.repaints;
        set(test.button);
        return test.view.repaints > before;
    };
    CHECK(redraws([](auto& button) { button.SetButtonType(4); }));
    CHECK(redraws([](auto& button) { button.SetCaption("neu"); }));
    CHECK(redraws([](auto& button) { button.SetEnabled(false); }));
    CHECK(redraws([](auto& button) { button.SetFont({"Arial"}); }));
    CHECK(redraws([](auto& button) { button.SetColorScheme(2); }));
    CHECK(redraws([](auto& button) { button.SetBackColor(0); }));
    CHECK(redraws([](auto& button) { button.SetBackOver(0); }));
    CHECK(redraws([](auto& button) { button.SetForeColor(0); }));
    CHECK(redraws([](auto& button) { button.SetForeOver(0); }));
    CHECK(redraws([](auto& button) { button.SetMaskColor(0); }));
    CHECK(redraws([](auto& button) { button.SetPictureNormal(nullptr); }));
    CHECK(redraws([](auto& button) { button.SetPictureOver(nullptr); }));
    CHECK(redraws([](auto& button) { button.SetUseMaskColor(true); }));
    CHECK(redraws([](auto& button) { button.SetSoftBevel(true); }));
    CHECK(redraws([](auto& button) { button.SetPicturePosition(1); }));
    CHECK(redraws([](auto& button) { button.SetNormalGrey(true); }));
    CHECK(redraws([](auto& button) { button.SetSpecialEffect(1); }));
    CHECK(redraws([](auto& button) { button.SetValue(true); }));
}

TEST_CASE("the mouse shows a hand, the pointer code, or the button's own picture") {
    WatchedButton test;
    CHECK(test.button.MousePicture().code == 0);
    const auto icon = TestIcon();
    test.button.SetMousePointer(toolkit::Pointer::Own);
    test.button.SetMouseIcon(icon);
    CHECK(test.button.MousePicture().code == 99);
    CHECK(test.button.MousePicture().picture == icon.get());
    test.button.SetHandPointer(true);
    CHECK(test.button.MousePicture().code == toolkit::Pointer::Hand);
}

TEST_CASE("a button tells its version and its window") {
    WatchedButton test;
    CHECK(std::string(chameleonButton::Version()) == "2.0.6");
    CHECK(test.button.hwnd() == &test.view);
}
