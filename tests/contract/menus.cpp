#include "platform/menus.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "toolkit/popupmenu.h"

namespace {

struct Menus {
    contract::TestMachine machine;
    const toolkit::PopupMenu menu{"mnuTest",
                                  {{"mnuShow", "Größe", nullptr},
                                   {"t1", "", nullptr},
                                   {"mnuSame", "Zurück", nullptr},
                                   {"mnuEnd", "Beenden", nullptr}}};

    std::string ChooseNow() {
        const toolkit::MenuItem* item = machine.Services().menus.Choose(menu);
        return item ? item->name : "nothing";
    }
    std::string Choose(const char* caption) {
        machine.UseNextMenu(caption);
        return ChooseNow();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Menus, "the item that the user chose is told, separators count as no item") {
    CHECK(Choose("Größe") == "mnuShow");
    CHECK(Choose("Zurück") == "mnuSame");
    CHECK(Choose("Beenden") == "mnuEnd");
}

TEST_CASE_FIXTURE(Menus, "a menu that the user leaves tells nothing, and the next one opens") {
    CHECK(Choose("") == "nothing");
    CHECK(Choose("Zurück") == "mnuSame");
}

TEST_CASE_FIXTURE(Menus, "a menu's own events are not raised by showing it") {
    int clicks = 0;
    toolkit::PopupMenu counting = menu;
    for (auto& item : counting.items) item.onClick = [&] { ++clicks; };
    machine.UseNextMenu("Beenden");
    CHECK(machine.Services().menus.Choose(counting) == &counting.items[3]);
    CHECK(clicks == 0);
}

TEST_CASE_FIXTURE(Menus, "while a menu is open another one does not open") {
    std::string second = "not tried";
    machine.UseNextMenu("Beenden", [&] { second = ChooseNow(); });
    CHECK(ChooseNow() == "mnuEnd");
    CHECK(second == "nothing");
}
