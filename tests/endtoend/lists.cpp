#include "endtoend/lists.h"

#include <windows.h>

#include <commctrl.h>

#include "endtoend/automation.h"
#include "endtoend/farmemory.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

constexpr int TextLimit = 1000;

std::string ReadText(const FarMemory& memory, std::size_t offset) {
    wchar_t text[TextLimit] = {};
    memory.Read(offset, text, sizeof text);
    text[TextLimit - 1] = 0;
    return platform::win32::FromWide(text);
}

LPARAM Middle(const RECT& area) {
    return MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
}

void PostClick(HWND window, LPARAM place) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(window, WM_LBUTTONUP, 0, place);
}

}  // namespace

int Rows::Count() const {
    return static_cast<int>(Send(window_, LVM_GETITEMCOUNT));
}

HWND Rows::Header() const {
    return reinterpret_cast<HWND>(Send(window_, LVM_GETHEADER));
}

int Rows::Columns() const {
    return static_cast<int>(Send(Header(), HDM_GETITEMCOUNT));
}

std::vector<std::string> Rows::Headers() const {
    const FarMemory memory(window_);
    std::vector<std::string> headers;
    for (int column = 0; column < Columns(); ++column) {
        LVCOLUMNW facts = {};
        facts.mask = LVCF_TEXT;
        facts.pszText = reinterpret_cast<wchar_t*>(memory.At(sizeof facts));
        facts.cchTextMax = TextLimit;
        memory.Write(facts);
        Send(window_, LVM_GETCOLUMNW, static_cast<WPARAM>(column),
             reinterpret_cast<LPARAM>(memory.At(0)));
        headers.push_back(ReadText(memory, sizeof facts));
    }
    return headers;
}

std::vector<std::string> Rows::Texts(int row) const {
    const FarMemory memory(window_);
    std::vector<std::string> texts;
    for (int column = 0; column < Columns(); ++column) {
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = reinterpret_cast<wchar_t*>(memory.At(sizeof item));
        item.cchTextMax = TextLimit;
        memory.Write(item);
        Send(window_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
             reinterpret_cast<LPARAM>(memory.At(0)));
        texts.push_back(ReadText(memory, sizeof item));
    }
    return texts;
}

bool Rows::Ticked(int row) const {
    return Send(window_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) ==
           INDEXTOSTATEIMAGEMASK(2);
}

bool Rows::Selected(int row) const {
    return Send(window_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
}

int Rows::ColumnWidth(int column) const {
    return static_cast<int>(Send(window_, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

RECT Rows::AreaOf(int row) const {
    if (row < 0 || row >= Count()) throw Failed("there is no row " + std::to_string(row));
    Send(window_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    const FarMemory memory(window_);
    RECT area = {};
    area.left = LVIR_LABEL;
    memory.Write(area);
    Send(window_, LVM_GETITEMRECT, static_cast<WPARAM>(row),
         reinterpret_cast<LPARAM>(memory.At(0)));
    memory.Read(0, &area, sizeof area);
    return area;
}

LPARAM Rows::TextPlace(int row) const {
    const RECT area = AreaOf(row);
    return MAKELPARAM(area.left + 8, (area.top + area.bottom) / 2);
}

// The box stands somewhere before the text.
LPARAM Rows::BoxPlace(int row) const {
    const RECT area = AreaOf(row);
    const FarMemory memory(window_);
    for (LONG x = area.left; x >= 0; --x) {
        LVHITTESTINFO hit = {};
        hit.pt = {x, (area.top + area.bottom) / 2};
        memory.Write(hit);
        Send(window_, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(memory.At(0)));
        memory.Read(0, &hit, sizeof hit);
        if (hit.flags == LVHT_ONITEMSTATEICON) return MAKELPARAM(x - 4, hit.pt.y);
    }
    throw Failed("the row has no box");
}

void Rows::Click(int row) const {
    PostClick(window_, TextPlace(row));
}

void Rows::DoubleClick(int row) const {
    const LPARAM place = TextPlace(row);
    PostClick(window_, place);
    PostMessageW(window_, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    PostMessageW(window_, WM_LBUTTONUP, 0, place);
}

void Rows::SetTicked(int row, bool ticked) const {
    const LPARAM place = BoxPlace(row);
    if (Ticked(row) == ticked) return;
    PostClick(window_, place);
    Until("row " + std::to_string(row) + " to change", [&] { return Ticked(row) == ticked; });
}

void Rows::PressRightButton(int row) const {
    const LPARAM place = TextPlace(row);
    PostMessageW(window_, WM_RBUTTONDOWN, MK_RBUTTON, place);
    PostMessageW(window_, WM_RBUTTONUP, 0, place);
}

void Rows::ClickHeader(int column) const {
    if (column < 0 || column >= Columns()) {
        throw Failed("there is no column " + std::to_string(column));
    }
    const FarMemory memory(window_);
    memory.Write(RECT{});
    Send(Header(), HDM_GETITEMRECT, static_cast<WPARAM>(column),
         reinterpret_cast<LPARAM>(memory.At(0)));
    RECT area = {};
    memory.Read(0, &area, sizeof area);
    PostClick(Header(), Middle(area));
}

std::vector<std::string> LinesOf(HWND window) {
    const bool isCombo = ClassOf(window) == "ComboBox";
    const UINT length = isCombo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN;
    const UINT text = isCombo ? CB_GETLBTEXT : LB_GETTEXT;
    const LRESULT count = Send(window, isCombo ? CB_GETCOUNT : LB_GETCOUNT);
    std::vector<std::string> lines;
    for (LRESULT line = 0; line < count; ++line) {
        const auto at = static_cast<WPARAM>(line);
        // The system carries these texts from process to process itself.
        std::wstring wide(static_cast<std::size_t>(Send(window, length, at)) + 1, L'\0');
        wide.resize(static_cast<std::size_t>(
            Send(window, text, at, reinterpret_cast<LPARAM>(wide.data()))));
        lines.push_back(platform::win32::FromWide(wide));
    }
    return lines;
}

void ChooseFromMenu(const Application& application, int item) {
    const auto menu = [&]() -> HWND {
        for (const HWND window : application.TopLevel()) {
            if (ClassOf(window) == "#32768" && IsWindowVisible(window)) return window;
        }
        return nullptr;
    };
    Until("a menu", [&] { return menu() != nullptr; });
    for (int step = 0; step < item; ++step) PostMessageW(menu(), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(menu(), WM_KEYDOWN, VK_RETURN, 0);
    Until("the menu's end", [&] { return menu() == nullptr; });
}

}  // namespace endtoend
