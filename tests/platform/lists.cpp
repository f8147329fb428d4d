// What the simulated windows note of list views, and their order of texts.
#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "toolkit/listview.h"

namespace {

struct Window {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "Quillmore", {0, 0, 9990, 7920}};
    toolkit::ListView& list = form.Add<toolkit::ListView>("lvwFiles");

    Window() {
        list.AddColumn("Name");
        list.AddColumn("Typ");
    }
};

using Lines = std::vector<std::string>;

}  // namespace

TEST_CASE_FIXTURE(Window,
                  "fitting, scrolling and locking a list are noted while its form is loaded") {
    const auto doAll = [&] {
        list.LockWindow();
        list.EnsureVisible(list.AddRow("a"));
        list.FitColumn(0, true);
        list.FitColumn(1, false);
        list.UnlockWindow();
    };
    doAll();
    CHECK(machine.journal.Lines().empty());
    form.Load();
    doAll();
    CHECK(machine.journal.Lines() ==
          Lines{"OpenForm frmMain", "LockWindowUpdate lvwFiles", "SendMessageA lvwFiles 4115 1",
                "SendMessageA lvwFiles 4126 0 -2", "SendMessageA lvwFiles 4126 1 -1",
                "LockWindowUpdate 0"});
    form.Unload();
    machine.journal.Clear();
    doAll();
    CHECK(machine.journal.Lines().empty());
}

TEST_CASE_FIXTURE(Window, "texts sort without regard to case, umlauts with their vowels") {
    for (const char* text :
         {"Zebra", "öl", "apfel", "Ähre", "straße", "STRASSE", "Oase", "10", "9"}) {
        list.AddRow(text);
    }
    list.SetSorted(true);
    Lines texts;
    for (int row = 0; row < list.Count(); ++row) texts.push_back(list.Text(row));
    CHECK(texts == Lines{"10", "9", "Ähre", "apfel", "Oase", "öl", "straße", "STRASSE", "Zebra"});
}
