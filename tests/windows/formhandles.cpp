#include "platform/win32/formhandles.h"

#include <doctest/doctest.h>

#include "windows/desk.h"

using namespace windows;

TEST_CASE("the main window is that of the first loaded form that is no dialog") {
    Desk desk;
    TestForm dialog(desk.host, "frmFirstInfo");
    TestForm first(desk.host, "frmMain");
    TestForm second(desk.host, "frmOther");
    first.isDialog = false;
    second.isDialog = false;
    CHECK(desk.host.MainWindow() == nullptr);
    dialog.Load();
    CHECK(desk.host.MainWindow() == nullptr);
    first.Load();
    second.Load();
    CHECK(desk.host.MainWindow() == desk.host.WindowOf(first));
    first.Unload();
    CHECK(desk.host.MainWindow() == desk.host.WindowOf(second));
}
