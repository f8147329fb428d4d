// A window with every kind of list, for the test of what drives them from outside.
#include <windows.h>

#include <commctrl.h>

#include "platform/win32/menus.h"
#include "platform/win32/messages.h"
#include "platform/win32/windows/windowhost.h"
#include "toolkit/drivelistbox.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"
#include "toolkit/popupmenu.h"
#include "toolkit/progressbar.h"

namespace {

class ListForm final : public toolkit::Form {
  public:
    ListForm(toolkit::FormHost& host, platform::Menus& menus)
        : Form(host, "frmLists", "Listen", {1500, 1500, 7500, 6000}), menus_(menus) {
        isDialog = false;
        firstFocus = &files_;
        for (const char* header : {"Name", "Größe (bytes)", "Typ"}) files_.AddColumn(header);
        for (const char* name : {"C:\\Temp\\b.tmp", "C:\\Temp\\Übung.tmp", "C:\\Temp\\a.tmp"}) {
            const int row = files_.AddRow(name);
            files_.SetText(row, 1, std::to_string(row * 512));
            files_.SetText(row, 2, "TMP-Datei");
        }
        files_.SetTicked(1, true);
        files_.onColumnClick = [this](int column) { SortBy(column); };
        files_.onClick = [this] { Note("geklickt"); };
        files_.onDoubleClick = [this] { Note("doppelt"); };
        files_.onRightButton = [this] { OpenMenu(); };
        lines_.AddItem("Cookie:jörg@quillmore.example/");
        lines_.AddItem("http://quillmore.example/");
        drives_.SetDrives({"a:", "c: [SYSTEM]", "d:"});
        drives_.SetDrive("C:\\");
        bar_.SetMaximum(7);
        bar_.SetValue(5);
        SetLayout(toolkit::Margin(
            toolkit::Column({Stretch(Leaf(files_)), Leaf(lines_), Leaf(drives_), Leaf(bar_)}), 8));
    }

  private:
    void OnLoad() override {
        for (int column = 0; column < 3; ++column) files_.FitColumn(column, true);
    }

    void Note(const char* what) { SetCaption(files_.Text(files_.SelectedRow()) + " " + what); }

    void SortBy(int column) {
        descending_ = !descending_;
        files_.SetSortKey(column);
        files_.SetSortOrder(descending_ ? toolkit::ListView::Descending
                                        : toolkit::ListView::Ascending);
        files_.SetSorted(true);
    }

    void OpenMenu() {
        const toolkit::MenuItem* chosen = menus_.Choose(menu_);
        if (chosen && chosen->onClick) chosen->onClick();
    }

    void TickAll(bool ticked) {
        for (int row = 0; row < files_.Count(); ++row) files_.SetTicked(row, ticked);
    }

    platform::Menus& menus_;
    toolkit::ListView& files_ =
        Add<toolkit::ListView>("lvwFiles", toolkit::ListViewStyle{.checkBoxes = true});
    toolkit::ListBox& lines_ = Add<toolkit::ListBox>("List1", 40, 3);
    toolkit::DriveListBox& drives_ = Add<toolkit::DriveListBox>("drvSelect");
    toolkit::ProgressBar& bar_ = Add<toolkit::ProgressBar>("prgbarIE1");
    toolkit::PopupMenu menu_{"mnuTempFiles",
                             {{"mnuSelectAll", "Alle", [this] { TickAll(true); }},
                              {"mnuDeselectAll", "Keine", [this] { TickAll(false); }}}};
    bool descending_ = false;
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    InitCommonControls();
    platform::win32::Messages messages;
    platform::win32::WindowHost host(messages);
    platform::win32::Menus menus;
    ListForm form(host, menus);
    form.Show();
    host.Run();
    return 0;
}
