#include <doctest/doctest.h>

#include <cstring>

#include "platform/simulated/beeper.h"
#include "platform/simulated/journal.h"
#include "runtime/failure.h"
#include "toolkit/combobox.h"
#include "tweaks/keyfilters.h"
#include "windows/desk.h"

using namespace windows;

namespace {

// Leaves a text for the next paste.
void Copy(HWND owner, std::wstring_view text) {
    REQUIRE(OpenClipboard(owner));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    auto* target = static_cast<wchar_t*>(GlobalLock(memory));
    std::memcpy(target, text.data(), text.size() * sizeof(wchar_t));
    target[text.size()] = L'\0';
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

// The three kinds of field, each behind the filter that it has in the program.
struct Fields : Desk {
    platform::simulated::Journal journal;
    platform::simulated::Beeper beeper{journal};
    TestForm form{host, "frmMain"};
    toolkit::ComboBox& mtu = form.Add<toolkit::ComboBox>("cboMTU");
    toolkit::TextBox& ttl = form.Add<toolkit::TextBox>("txtTTL");
    toolkit::TextBox& level = form.Add<toolkit::TextBox>("txtLevelValue");
    toolkit::TextBox& free = form.Add<toolkit::TextBox>("txtFree");

    Fields() {
        form.SetLayout(toolkit::Column({Leaf(mtu), Leaf(ttl), Leaf(level), Leaf(free)}));
        tweaks::ConnectKeyFilters(form, beeper);
        form.Show();
    }

    // The user goes there and presses keys, by their virtual codes.
    void Press(const char* name, std::initializer_list<WPARAM> keys) const {
        SetFocus(Find(form, name));
        for (const WPARAM key : keys) {
            const UINT scan = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC);
            PostMessageW(GetFocus(), WM_KEYDOWN, key, static_cast<LPARAM>(1 | scan << 16));
            PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001u | scan << 16));
            ServeQueue();
        }
    }
    // Strg and a letter, as the field is told of them.
    void Command(const char* name, char letter) const {
        SetFocus(Find(form, name));
        SendMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter - 'A' + 1), 0);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fields, "digits pass in every filtered field") {
    Press("cboMTU", {'1', '5', '0', '0'});
    Press("txtTTL", {'6', '4'});
    Press("txtLevelValue", {'2', '5', '5'});
    CHECK(mtu.Text() == "1500");
    CHECK(ttl.Text() == "64");
    CHECK(level.Text() == "255");
    CHECK(beeper.beeps == 0);
}

// The window's keys come to a field only where its list is open.
TEST_CASE_FIXTURE(Fields, "Return and Escape close the open list of a filtered field") {
    const HWND window = Find(form, "cboMTU");
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
        CAPTURE(key);
        Press("cboMTU", {VK_F4});
        REQUIRE(SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0));
        SendMessageW(GetFocus(), WM_CHAR, key, 0);
        CHECK_FALSE(SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0));
    }
    CHECK(beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "a letter is swallowed with one beep") {
    Press("cboMTU", {'1', 'A', '5'});
    CHECK(mtu.Text() == "15");
    CHECK(TextOf(Find(form, "cboMTU")) == "15");
    CHECK(beeper.beeps == 1);
    Press("txtTTL", {'X', VK_SPACE, '6'});
    CHECK(ttl.Text() == "6");
    CHECK(beeper.beeps == 3);
    Press("txtLevelValue", {VK_OEM_MINUS, '1'});
    CHECK(level.Text() == "1");
    CHECK(beeper.beeps == 4);
}

TEST_CASE_FIXTURE(Fields, "Backspace deletes in some fields and is refused beside a slider") {
    Press("cboMTU", {'1', '5', VK_BACK});
    CHECK(mtu.Text() == "1");
    Press("txtTTL", {'6', '4', VK_BACK});
    CHECK(ttl.Text() == "6");
    CHECK(beeper.beeps == 0);
    Press("txtLevelValue", {'2', '5', VK_BACK});
    CHECK(level.Text() == "25");
    CHECK(beeper.beeps == 1);
}

TEST_CASE_FIXTURE(Fields, "the Delete key is no character and is not filtered") {
    Press("txtLevelValue", {'2', '5', VK_HOME, VK_DELETE});
    CHECK(level.Text() == "5");
    CHECK(beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "pasted text passes the filters, from the menu and by the keyboard") {
    Copy(host.WindowOf(form), L"12ab");
    SUBCASE("from the menu") {
        for (const char* name : {"cboMTU", "txtTTL", "txtLevelValue"}) {
            SetFocus(Find(form, name));
            SendMessageW(GetFocus(), WM_PASTE, 0, 0);
        }
    }
    SUBCASE("by the keyboard") {
        for (const char* name : {"cboMTU", "txtTTL", "txtLevelValue"}) Command(name, 'V');
    }
    CHECK(mtu.Text() == "12ab");
    CHECK(ttl.Text() == "12ab");
    CHECK(level.Text() == "12ab");
    CHECK(beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "the clipboard's keys are silent, other keys with Strg are not") {
    for (const char letter : {'A', 'C', 'V', 'X', 'Z'}) {
        Command("cboMTU", letter);
        Command("txtTTL", letter);
    }
    CHECK(beeper.beeps == 0);
    Command("txtTTL", 'B');
    CHECK(beeper.beeps == 1);
}

TEST_CASE_FIXTURE(Fields, "a field without a filter takes every key") {
    Press("txtFree", {'1', VK_SPACE});
    SendMessageW(GetFocus(), WM_CHAR, L'ä', 0);
    SendMessageW(GetFocus(), WM_CHAR, 0x6F22, 0);
    CHECK(free.Text() == "1 ä漢");
    CHECK(beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "a key handler may put another character in the place of the typed one") {
    char16_t seen = 0;
    const auto replace = [&](char16_t& character) {
        seen = character;
        character = u'€';
    };
    free.onKeyPress = replace;
    mtu.onKeyPress = replace;
    Press("txtFree", {'7'});
    CHECK(seen == u'7');
    CHECK(free.Text() == "€");
    Press("cboMTU", {'8'});
    CHECK(seen == u'8');
    CHECK(mtu.Text() == "€");
}

TEST_CASE_FIXTURE(Fields, "a key handler that fails ends in the default message") {
    free.onKeyPress = [](char16_t&) { throw runtime::Failure(runtime::Overflow); };
    Press("txtFree", {'7'});
    CHECK(messages.texts.size() == 1);
    CHECK(free.Text() == "7");
}

TEST_CASE_FIXTURE(Fields, "a key handler may unload the form") {
    free.onKeyPress = [&](char16_t&) { form.Unload(); };
    const HWND window = Find(form, "txtFree");
    SendMessageW(window, WM_CHAR, L'7', 0);
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(IsWindow(window));
}

TEST_CASE("a box that only lists asks for typed keys too, and a swallowed one selects nothing") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& box = form.Add<toolkit::ComboBox>("cbodrives", toolkit::ComboBoxStyle{.listOnly = true});
    box.AddItem("E:");
    box.AddItem("F:");
    form.Show();
    const HWND window = desk.Find(form, "cbodrives");
    box.onKeyPress = [](char16_t& character) {
        if (character == u'f') character = 0;
    };
    SendMessageW(window, WM_CHAR, L'f', 0);
    CHECK(box.ListIndex() == toolkit::ComboBox::NoSelection);
    SendMessageW(window, WM_CHAR, L'e', 0);
    CHECK(box.ListIndex() == 0);
}
