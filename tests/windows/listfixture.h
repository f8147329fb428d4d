#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "platform/win32/text.h"
#include "toolkit/listview.h"
#include "windows/desk.h"

namespace windows {

// A list of files on a window to be seen.
struct ListFixture {
    explicit ListFixture(toolkit::ListViewStyle style = {.checkBoxes = true})
        : list(form.Add<toolkit::ListView>("lvwFiles", style)) {
        for (const char* header : {"Name", "Größe (bytes)", "Typ"}) list.AddColumn(header);
        form.SetLayout(Leaf(list));
        form.Show();
        window = desk.Find(form, "lvwFiles");
        ServeQueue();
    }

    void Fill(int rows) {
        for (int row = 0; row < rows; ++row) list.AddRow("Datei " + std::to_string(row));
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(window, message, wParam, lParam);
    }

    std::string Shown(int row, int column) const {
        std::wstring text(2000, L'\0');
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        text.resize(static_cast<std::size_t>(
            Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
        return platform::win32::FromWide(text);
    }

    bool ShownTicked(int row) const {
        const LRESULT state = Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
        return state == INDEXTOSTATEIMAGEMASK(2);
    }

    bool ShownSelected(int row) const {
        return Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
    }

    // A place in the row: its box to tick, or its text.
    LPARAM BoxOf(int row) const {
        RECT area = AreaOf(row);
        for (int x = 0; x < area.right; ++x) {
            LVHITTESTINFO hit{};
            hit.pt = {x, (area.top + area.bottom) / 2};
            Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
            if (hit.flags == LVHT_ONITEMSTATEICON) return MAKELPARAM(x + 3, hit.pt.y);
        }
        return 0;
    }
    LPARAM TextOf(int row) const {
        const RECT area = AreaOf(row);
        return MAKELPARAM(area.left + 10, (area.top + area.bottom) / 2);
    }

    void Click(LPARAM at, WPARAM keys = 0) const {
        Send(WM_LBUTTONDOWN, MK_LBUTTON | keys, at);
        Send(WM_LBUTTONUP, keys, at);
        ServeQueue();
    }

    void ClickHeader(int column) const {
        const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
        RECT area{};
        SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&area));
        const LPARAM at = MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
        SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, at);
        SendMessageW(header, WM_LBUTTONUP, 0, at);
        ServeQueue();
    }

    Desk desk;
    TestForm form{desk.host, "frmMain"};
    toolkit::ListView& list;
    HWND window = nullptr;

  private:
    RECT AreaOf(int row) const {
        RECT area{};
        area.left = LVIR_LABEL;
        Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
        return area;
    }
};

}  // namespace windows
