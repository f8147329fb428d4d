#include <doctest/doctest.h>

#include "windows/desk.h"

using namespace windows;

namespace {

struct Report : Desk {
    TestForm form{host, "frmReport"};
    toolkit::TextBox& box = form.Add<toolkit::TextBox>(
        "txtReport",
        toolkit::TextBoxStyle{.multiLine = true, .readOnly = true, .tabWidth = 20, .columns = 40});
    PlainButton& first = form.Add<PlainButton>("cmdFirst", "Erste");
    PlainButton& second = form.Add<PlainButton>("cmdSecond", "Zweite");

    Report() {
        form.SetLayout(toolkit::Column({Leaf(box), Leaf(first), Leaf(second)}));
        box.SetText("Name:\tWert\r\nzwei");
        form.Show();
        SetFocus(Edit());
    }
    HWND Edit() const { return Find(form, "txtReport"); }
};

}  // namespace

TEST_CASE_FIXTURE(Report, "a read-only box shows its lines, scrolls, and takes no typing") {
    CHECK(TextOf(Edit()) == "Name:\tWert\r\nzwei");
    const LONG style = GetWindowLongW(Edit(), GWL_STYLE);
    CHECK((style & ES_READONLY) != 0);
    CHECK((style & WS_VSCROLL) != 0);
    SendMessageW(Edit(), WM_CHAR, 'x', 0);
    SendMessageW(Edit(), WM_PASTE, 0, 0);
    CHECK(TextOf(Edit()) == "Name:\tWert\r\nzwei");
    CHECK(box.Text() == "Name:\tWert\r\nzwei");
}

TEST_CASE_FIXTURE(Report, "its text can be marked") {
    SendMessageW(Edit(), EM_SETSEL, 0, 4);
    DWORD start = 9;
    DWORD end = 0;
    SendMessageW(Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    CHECK(start == 0);
    CHECK(end == 4);
}

TEST_CASE_FIXTURE(Report, "values stand below each other at the tab stop, beyond a long name") {
    const auto columnOf = [&](std::size_t character) {
        return LOWORD(SendMessageW(Edit(), EM_POSFROMCHAR, character, 0));
    };
    box.SetText("a:\tx\r\nEinlangerName:\tx");
    CHECK(columnOf(3) == columnOf(21));
    CHECK(columnOf(3) > columnOf(0) + 60);
}

TEST_CASE_FIXTURE(Report, "the program can change the text that the user cannot") {
    box.SetText("neu");
    CHECK(TextOf(Edit()) == "neu");
}

TEST_CASE_FIXTURE(Report, "the tabulator leaves the box in both directions") {
    const auto leave = [&](WPARAM backwards) {
        SetFocus(Edit());
        SendMessageW(host.WindowOf(form), WM_NEXTDLGCTL, backwards, FALSE);
        return NameOf(GetFocus());
    };
    CHECK(leave(0) == "cmdFirst");
    CHECK(leave(1) == "cmdSecond");
}

TEST_CASE_FIXTURE(Report, "the tabulator key typed in the box goes to the next control") {
    std::string reached;
    form.keyDown = [&](int key) {
        if (key != VK_F2) return false;
        reached = NameOf(GetFocus());
        form.Hide();
        return true;
    };
    PostMessageW(Edit(), WM_KEYDOWN, VK_TAB, 0);
    PostMessageW(Edit(), WM_KEYDOWN, VK_F2, 0);
    form.ShowModal();
    CHECK(reached == "cmdFirst");
}
