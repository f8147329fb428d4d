#include <doctest/doctest.h>

#include "toolkit/drivelistbox.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"
#include "toolkit/progressbar.h"
#include "windows/desk.h"
#include "windows/resources.h"

using namespace windows;

namespace {

// The number of a fresh window; it grows with the windows that are alive.
int NextWindow() {
    const HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr);
    DestroyWindow(window);
    return LOWORD(reinterpret_cast<ULONG_PTR>(window));
}

void FillLists(TestForm& form) {
    auto& list = form.Add<toolkit::ListView>("lvwLeak", toolkit::ListViewStyle{.checkBoxes = true});
    list.AddColumn("Name");
    list.AddRow("Datei");
    form.Add<toolkit::ListBox>("lstLeak").AddItem("Zeile");
    form.Add<toolkit::DriveListBox>("drvLeak").SetDrives({"c:"});
    form.Add<toolkit::ProgressBar>("prgLeak");
}

void OpenAndClose(Desk& desk) {
    TestForm form(desk.host, "frmLeak");
    form.Add<toolkit::Label>("lblLeak", "Text", toolkit::LabelStyle::Heading);
    form.Add<toolkit::TextBox>("txtLeak");
    form.Add<toolkit::ComboBox>("cboLeak").AddItem("552");
    FillLists(form);
    form.Add<toolkit::OptionButton>("optLeak", "Wahl", 1);
    auto& button = form.Add<PlainButton>("cmdLeak", "Knopf");
    form.SetLayout(Leaf(button));
    form.Show();
    ServeQueue();
    form.Unload();
}

}  // namespace

TEST_CASE("a dialog opened again and again leaves nothing behind") {
    Desk desk;
    for (int i = 0; i < 20; ++i) OpenAndClose(desk);
    const int objects = DrawingObjects();
    const int window = NextWindow();
    for (int i = 0; i < 500; ++i) OpenAndClose(desk);
    // The system keeps a few of its own; one left behind each time would be five hundred.
    CHECK(DrawingObjects() <= objects + 20);
    // All programs of the session take from these numbers, those too that are just starting.
    CHECK(NextWindow() <= window + 400);
    CHECK(GlobalFindAtomA("txtLeak") == 0);
}
