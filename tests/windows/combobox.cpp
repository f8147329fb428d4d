#include "toolkit/combobox.h"

#include <doctest/doctest.h>

#include "platform/win32/windows/controlwindow.h"
#include "runtime/failure.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;
using toolkit::ComboBox;

namespace {

using Journal = std::vector<std::string>;

struct OneBox : Desk {
    TestForm form{host, "frmMain"};
    ComboBox& box;
    toolkit::TextBox& after = form.Add<toolkit::TextBox>("txtAfter");
    Journal events;
    HWND window = nullptr;
    HWND field = nullptr;
    HWND list = nullptr;

    explicit OneBox(toolkit::ComboBoxStyle style = {}) : box(form.Add<ComboBox>("cboMTU", style)) {
        for (const char* item : {"552", "576", "1500"}) box.AddItem(item);
        box.onChange = [this] { events.push_back("change " + box.Text()); };
        box.onClick = [this] { events.push_back("click " + box.Text()); };
        form.SetLayout(toolkit::Column({Leaf(box), Leaf(after)}));
        form.Show();
        window = Find(form, "cboMTU");
        COMBOBOXINFO parts{};
        parts.cbSize = sizeof parts;
        GetComboBoxInfo(window, &parts);
        field = parts.hwndItem;
        list = parts.hwndList;
    }

    void Type(std::wstring_view text) const {
        for (const wchar_t character : text) SendMessageW(field, WM_CHAR, character, 0);
    }
    // The user drops the list down and presses the mouse on an item.
    void Pick(int item) const {
        SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
        RECT area{};
        SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(item),
                     reinterpret_cast<LPARAM>(&area));
        const LPARAM place = MAKELPARAM(area.left + 3, area.top + 3);
        SendMessageW(list, WM_MOUSEMOVE, 0, place);
        SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessageW(list, WM_LBUTTONUP, 0, place);
        ServeQueue();
    }
    void PressKey(WPARAM key) const {
        PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
        ServeQueue();
    }
    LRESULT NativeIndex() const { return SendMessageW(window, CB_GETCURSEL, 0, 0); }
};

struct ListOnly : OneBox {
    ListOnly() : OneBox({.listOnly = true}) {}
};

int HeightOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area.bottom - area.top;
}

std::string ItemOf(HWND window, int index) {
    wchar_t text[64] = L"";
    SendMessageW(window, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
    return platform::win32::FromWide(text);
}

}  // namespace

TEST_CASE_FIXTURE(OneBox, "a combo box is a COMBOBOX that carries the name, with its items") {
    wchar_t windowClass[32];
    GetClassNameW(window, windowClass, 32);
    CHECK(platform::win32::FromWide(windowClass) == "ComboBox");
    CHECK(NameOf(field) == "");
    REQUIRE(SendMessageW(window, CB_GETCOUNT, 0, 0) == 3);
    CHECK(ItemOf(window, 0) == "552");
    CHECK(ItemOf(window, 2) == "1500");
}

TEST_CASE_FIXTURE(OneBox, "what is typed beside the list raises one Change a letter") {
    Type(L"15ä");
    CHECK(box.Text() == "15ä");
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(events == Journal{"change 1", "change 15", "change 15ä"});
    CHECK(TextOf(window) == "15ä");
}

TEST_CASE_FIXTURE(OneBox, "an item picked with the mouse raises one Click and no Change") {
    Pick(2);
    CHECK(box.ListIndex() == 2);
    CHECK(box.Text() == "1500");
    CHECK(events == Journal{"click 1500"});
    CHECK(TextOf(window) == "1500");
    Pick(2);
    CHECK(events.size() == 1);
    Pick(0);
    CHECK(events == Journal{"click 1500", "click 552"});
}

TEST_CASE_FIXTURE(OneBox, "an item picked after its own text was typed raises Click") {
    Type(L"576");
    events.clear();
    Pick(1);
    CHECK(box.ListIndex() == 1);
    CHECK(events == Journal{"click 576"});
}

TEST_CASE_FIXTURE(OneBox, "an item picked, changed by typing and picked again raises Click again") {
    Pick(1);
    SendMessageW(field, EM_SETSEL, 3, 3);
    Type(L"0");
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(box.Text() == "5760");
    Pick(1);
    CHECK(events == Journal{"click 576", "change 5760", "click 576"});
    CHECK(TextOf(window) == "576");
}

TEST_CASE_FIXTURE(OneBox, "the arrow keys walk through the items, one Click a step") {
    SetFocus(window);
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    CHECK(events == Journal{"click 552", "click 576"});
    CHECK(TextOf(window) == "576");
    PressKey(VK_UP);
    CHECK(box.ListIndex() == 0);
}

TEST_CASE_FIXTURE(OneBox, "what the program sets is shown and raises its event once") {
    box.SetText("1492");
    CHECK(TextOf(window) == "1492");
    CHECK(NativeIndex() == CB_ERR);
    box.SetListIndex(1);
    CHECK(TextOf(window) == "576");
    CHECK(NativeIndex() == 1);
    box.SetListIndex(ComboBox::NoSelection);
    CHECK(TextOf(window) == "");
    CHECK(NativeIndex() == CB_ERR);
    ServeQueue();
    CHECK(events == Journal{"change 1492", "click 576", "click "});
}

TEST_CASE_FIXTURE(OneBox, "clearing empties list and field, and new items come into it") {
    box.SetListIndex(1);
    box.Clear();
    CHECK(SendMessageW(window, CB_GETCOUNT, 0, 0) == 0);
    CHECK(TextOf(window) == "");
    CHECK(events == Journal{"click 576", "change "});
    box.AddItem("neu");
    REQUIRE(SendMessageW(window, CB_GETCOUNT, 0, 0) == 1);
    CHECK(ItemOf(window, 0) == "neu");
}

TEST_CASE_FIXTURE(OneBox, "a script sets the text as the user types it") {
    SetWindowTextW(window, L"1400");
    CHECK(box.Text() == "1400");
    CHECK(events == Journal{"change 1400"});
}

TEST_CASE_FIXTURE(OneBox, "an event that changes the text leaves the caret where it was") {
    box.onChange = [&] {
        if (box.Text() == "ax") box.SetText("ay");
    };
    Type(L"axz");
    CHECK(TextOf(window) == "ayz");
    CHECK(box.Text() == "ayz");
}

TEST_CASE_FIXTURE(OneBox, "an event that picks another item is shown in the end") {
    box.onClick = [&] { box.SetListIndex(0); };
    Pick(2);
    CHECK(box.ListIndex() == 0);
    CHECK(TextOf(window) == "552");
    CHECK(NativeIndex() == 0);
}

TEST_CASE_FIXTURE(OneBox, "an event that fails ends in the default message, and the item stays") {
    box.onClick = [] { throw runtime::Failure(runtime::Overflow); };
    Pick(1);
    CHECK(messages.texts.size() == 1);
    CHECK(TextOf(window) == "576");
}

TEST_CASE_FIXTURE(OneBox, "a box that unloads its form from its own events does no harm") {
    SUBCASE("typing") {
        box.onChange = [&] { form.Unload(); };
        Type(L"1");
    }
    SUBCASE("picking") {
        box.onClick = [&] { form.Unload(); };
        Pick(1);
    }
    SUBCASE("the key itself") {
        box.onKeyPress = [&](char16_t&) { form.Unload(); };
        Type(L"1");
    }
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(IsWindow(window));
    CHECK(box.View() == nullptr);
}

TEST_CASE_FIXTURE(OneBox, "closed, the box is as high as a text box, and its list drops below it") {
    CHECK(HeightOf(window) == HeightOf(Find(form, "txtAfter")));
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    RECT dropped{};
    SendMessageW(window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    const auto line = static_cast<int>(SendMessageW(window, CB_GETITEMHEIGHT, 0, 0));
    CHECK(dropped.bottom - dropped.top >= HeightOf(window) + 3 * line);
    CHECK(IsWindowVisible(list));
    CHECK(HeightOf(list) >= 3 * line);
}

TEST_CASE_FIXTURE(OneBox, "the focus is the field's, and goes on when the box loses its use") {
    SetFocus(window);
    CHECK(GetFocus() == field);
    CHECK((GetWindowLongW(window, GWL_STYLE) & WS_TABSTOP) != 0);
    SUBCASE("with the tabulator") {
        MSG key{field, WM_KEYDOWN, VK_TAB, 0, 0, {}};
        IsDialogMessageW(host.WindowOf(form), &key);
    }
    SUBCASE("disabled") {
        box.SetEnabled(false);
    }
    SUBCASE("hidden") {
        box.SetVisible(false);
    }
    CHECK(NameOf(GetFocus()) == "txtAfter");
}

TEST_CASE("the focus comes back to the box when the window does") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    form.Add<toolkit::TextBox>("txtFirst");
    form.Add<ComboBox>("cboMTU");
    form.Show();
    const HWND window = desk.Find(form, "cboMTU");
    SetFocus(window);
    SendMessageW(desk.host.WindowOf(form), WM_ACTIVATE, WA_INACTIVE, 0);
    SetFocus(nullptr);
    SendMessageW(desk.host.WindowOf(form), WM_SETFOCUS, 0, 0);
    CHECK(GetParent(GetFocus()) == window);
}

TEST_CASE_FIXTURE(OneBox, "closed, the box has the height that the layout gives it") {
    auto* view = dynamic_cast<platform::win32::ControlWindow*>(box.View());
    REQUIRE(view != nullptr);
    for (const int height : {30, 19, 21}) {
        CHECK(view->PlaceAt({0, 0, 100, height}));
        CHECK(HeightOf(window) == height);
    }
    CHECK_FALSE(view->PlaceAt({0, 0, 100, 21}));
}

TEST_CASE_FIXTURE(OneBox, "typing into a picked item goes on where the caret is") {
    Pick(1);
    SendMessageW(field, EM_SETSEL, 1, 1);
    Type(L"12");
    CHECK(TextOf(window) == "51276");
    CHECK(box.Text() == "51276");
}

TEST_CASE_FIXTURE(OneBox, "Return on the item that the open list has found takes that item") {
    SetFocus(window);
    Type(L"15");
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    PressKey(VK_RETURN);
    CHECK_FALSE(SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0));
    CHECK(TextOf(window) == "1500");
    CHECK(box.ListIndex() == 2);
    CHECK(events == Journal{"change 1", "change 15", "click 1500"});
}

// Selecting a list's item by message completes the field as silently as the class does.
TEST_CASE_FIXTURE(OneBox, "what the open list has made of the text counts when the list closes") {
    Type(L"15");
    events.clear();
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    SendMessageW(window, CB_SETCURSEL, 2, 0);
    REQUIRE(TextOf(window) == "1500");
    REQUIRE(box.Text() == "15");
    SUBCASE("left by Escape") {
        SetFocus(window);
        SendMessageW(field, WM_KEYDOWN, VK_ESCAPE, 0);
    }
    SUBCASE("closed by the program") {
        SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
    }
    CHECK_FALSE(SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0));
    CHECK(box.Text() == TextOf(window));
    CHECK(box.Text() == "1500");
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(OneBox,
                  "typed, dropped and left by real keys, the box holds what its field shows") {
    SetForegroundWindow(host.WindowOf(form));
    SetFocus(window);
    const auto press = [](WORD key) {
        RealMouse::Press(key, true);
        RealMouse::Press(key, false);
    };
    press('1');
    press('5');
    ServeUntil([&] { return TextOf(window).starts_with("15"); });
    // As Alt and the arrow do, with which Wine opens the window's menu, too.
    press(VK_F4);
    ServeUntil([&] { return SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0; });
    press(VK_ESCAPE);
    ServeUntil([&] { return SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) == 0; });
    CHECK((TextOf(window) == "15" || TextOf(window) == "1500"));
    CHECK(box.Text() == TextOf(window));
}

TEST_CASE_FIXTURE(OneBox, "a list that is opened and closed again changes nothing") {
    Pick(1);
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
    CHECK(box.ListIndex() == 1);
    CHECK(events == Journal{"click 576"});
}

TEST_CASE_FIXTURE(OneBox, "a text of 64 KiB goes in and out") {
    const std::string longText(65536, 'x');
    SUBCASE("set by the program") {
        box.SetText(longText);
        CHECK(GetWindowTextLengthW(window) == 65536);
    }
    SUBCASE("pasted") {
        SendMessageW(field, EM_REPLACESEL, FALSE,
                     reinterpret_cast<LPARAM>(platform::win32::ToWide(longText).c_str()));
        CHECK(box.Text() == longText);
    }
    CHECK(events.size() == 1);
}

TEST_CASE_FIXTURE(OneBox, "characters outside the code page come back as they were") {
    const std::string strange = "Ω Ж 漢 😀";
    box.AddItem(strange);
    Pick(3);
    CHECK(box.Text() == strange);
    box.SetText("");
    SetWindowTextW(window, platform::win32::ToWide(strange + "!").c_str());
    CHECK(box.Text() == strange + "!");
}

TEST_CASE("a limit holds for what is typed") {
    OneBox desk({.maxLength = 4});
    desk.Type(L"12345");
    CHECK(desk.box.Text() == "1234");
    CHECK(desk.events.size() == 4);
}

TEST_CASE_FIXTURE(ListOnly, "a box that only lists has no field, and shows its selection") {
    CHECK((GetWindowLongW(window, GWL_STYLE) & 3) == CBS_DROPDOWNLIST);
    Pick(1);
    CHECK(events == Journal{"click 576"});
    CHECK(TextOf(window) == "576");
    box.SetListIndex(2);
    CHECK(TextOf(window) == "1500");
    CHECK(NativeIndex() == 2);
    box.SetText("552");
    CHECK(NativeIndex() == 0);
    box.Clear();
    CHECK(NativeIndex() == CB_ERR);
    CHECK(events == Journal{"click 576", "click 1500", "click 552"});
}

TEST_CASE_FIXTURE(ListOnly, "a box that only lists may be closed without a selection") {
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
    CHECK(box.ListIndex() == ComboBox::NoSelection);
    CHECK(messages.texts.empty());
    CHECK(events.empty());
}

TEST_CASE_FIXTURE(ListOnly, "an event of a box that only lists may pick another item") {
    box.onClick = [&] { box.SetListIndex(0); };
    Pick(2);
    CHECK(NativeIndex() == 0);
    CHECK(HeightOf(window) == HeightOf(Find(form, "txtAfter")));
}
