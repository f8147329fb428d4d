#include "platform/simulated/menus.h"

#include <doctest/doctest.h>

#include <stdexcept>

#include "platform/simulated/machine.h"
#include "toolkit/popupmenu.h"

namespace {

struct Menus {
    platform::simulated::Machine machine;
    platform::simulated::Menus& menus = machine.menus;
    const toolkit::PopupMenu menu{
        "mnuTest", {{"mnuOne", "Eins", nullptr}, {"t1", "", nullptr}, {"mnuTwo", "Zwei", nullptr}}};

    std::string Choose() {
        const toolkit::MenuItem* item = menus.Choose(menu);
        return item ? item->name : "nothing";
    }
    std::string MistakeOf() {
        try {
            Choose();
        } catch (const std::logic_error& error) {
            return error.what();
        }
        return "";
    }
};

}  // namespace

TEST_CASE_FIXTURE(Menus, "picks queue up, and the journal tells the menu and the choice") {
    menus.Pick("Zwei");
    menus.Dismiss();
    CHECK(Choose() == "mnuTwo");
    CHECK(Choose() == "nothing");
    CHECK(machine.journal.Text() ==
          "TrackPopupMenu mnuTest \"Eins\" - \"Zwei\" -> mnuTwo\n"
          "TrackPopupMenu mnuTest \"Eins\" - \"Zwei\" -> nothing\n");
}

TEST_CASE_FIXTURE(Menus, "a menu that nobody uses, or without the item, is a mistake in the test") {
    CHECK(MistakeOf() == "nobody uses the menu mnuTest");
    menus.Pick("Drei");
    CHECK(MistakeOf() == "no item \"Drei\" in the menu mnuTest");
}

TEST_CASE_FIXTURE(Menus, "while a menu is open another one does not open") {
    std::string second;
    menus.WhileOpen([&] { second = Choose(); });
    menus.Pick("Eins");
    CHECK(Choose() == "mnuOne");
    CHECK(second == "nothing");
}

TEST_CASE_FIXTURE(Menus, "a menu that the machine refuses chooses nothing and keeps the pick") {
    menus.Pick("Eins");
    machine.faults.FailAll("TrackPopupMenu", 7);
    CHECK(Choose() == "nothing");
    machine.faults.Clear();
    CHECK(Choose() == "mnuOne");
}
