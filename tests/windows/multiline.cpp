#include <doctest/doctest.h>

#include "windows/desk.h"

using namespace windows;

namespace {

// A page with a box of several lines in which one types, between two buttons.
struct Letter : Desk {
    TestForm form{host, "frmLetter"};
    toolkit::TabStrip& tabs = form.Add<toolkit::TabStrip>("tabs", std::vector<std::string>{"Eins"});
    PlainButton& first = form.Add<PlainButton>("cmdFirst", "Erste");
    toolkit::TextBox& box =
        form.Add<toolkit::TextBox>("txtLetter", toolkit::TextBoxStyle{.multiLine = true});
    PlainButton& second = form.Add<PlainButton>("cmdSecond", "Zweite");

    Letter() {
        form.SetLayout(
            toolkit::Pages(tabs, {toolkit::Column({Leaf(first), Leaf(box), Leaf(second)})}));
        box.SetText("eins");
        form.Show();
        SetFocus(Edit());
    }
    HWND Edit() const { return Find(form, "txtLetter"); }

    void Press(WPARAM key) const {
        MSG message{Edit(), WM_KEYDOWN, key, 1, 0, {}};
        IsDialogMessageW(host.WindowOf(form), &message);
        ServeQueue();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Letter, "the tabulator leaves a box of several lines and writes nothing there") {
    Press(VK_TAB);
    CHECK(NameOf(GetFocus()) == "cmdSecond");
    CHECK(box.Text() == "eins");
}

TEST_CASE_FIXTURE(Letter, "a box of several lines in which one types has a vertical scroll bar") {
    CHECK((GetWindowLongW(Edit(), GWL_STYLE) & WS_VSCROLL) != 0);
}

TEST_CASE_FIXTURE(Letter, "Return begins a new line in a box of several lines") {
    SendMessageW(Edit(), EM_SETSEL, 4, 4);
    Press(VK_RETURN);
    CHECK(NameOf(GetFocus()) == "txtLetter");
    CHECK(box.Text() == "eins\r\n");
}
