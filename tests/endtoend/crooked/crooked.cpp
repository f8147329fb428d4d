// Two windows for the test of the looks test: frmStraight, in which all is as it should be, and
// frmCrooked, in which every rule is broken once. The command line names the one to show.
#include <windows.h>

#include <string>

namespace {

constexpr wchar_t FormClass[] = L"CrookedForm";

struct Piece {
    const wchar_t* windowClass;
    const wchar_t* text;
    DWORD style;
    const char* name;
    // Left, top, width and height.
    RECT area;
    // A child of the first piece, where the tabulator does not come.
    bool buried = false;
};

constexpr DWORD ButtonClass = WS_TABSTOP | BS_AUTOCHECKBOX;
constexpr DWORD Edit = WS_TABSTOP | WS_BORDER;

// The order is the tabulator's.
const Piece Straight[] = {
    {L"BUTTON", L"Gruppe", BS_GROUPBOX, "fraGroup", {10, 10, 200, 90}},
    {L"BUTTON", L"&Erstes", ButtonClass, "chkFirst", {20, 30, 150, 17}},
    {L"BUTTON", L"&Zweites && drittes", ButtonClass, "chkSecond", {20, 50, 150, 17}},
    {L"STATIC", L"&Name", SS_LEFT, "lblName", {220, 30, 60, 16}},
    {L"EDIT", L"", Edit, "txtName", {290, 28, 90, 21}},
    {L"STATIC",
     L"Ein längerer Text, der über zwei Zeilen läuft",
     SS_LEFT,
     "lblLong",
     {220, 60, 160, 30}},
    {L"BUTTON", L"&Fertig", WS_TABSTOP, "cmdDone", {290, 120, 90, 25}},
};

const Piece Bent[] = {
    {L"BUTTON", L"Gruppe", BS_GROUPBOX, "fraGroup", {10, 10, 200, 90}},
    // Below the second one, yet before it.
    {L"BUTTON", L"&Erstes", ButtonClass, "chkFirst", {20, 70, 150, 17}},
    {L"BUTTON", L"Ein &eher langes zweites", ButtonClass, "chkSecond", {20, 30, 80, 17}},
    {L"BUTTON", L"Verschüttet", ButtonClass, "chkLost", {10, 40, 150, 17}, true},
    {L"STATIC", L"Name", SS_LEFT, "lblName", {220, 30, 60, 16}},
    // Into the label.
    {L"EDIT", L"", Edit, "txtName", {260, 28, 90, 21}},
    {L"STATIC",
     L"Ein längerer Text, der über zwei Zeilen läuft",
     SS_LEFT,
     "lblLong",
     {220, 60, 160, 16}},
    // Over the lower edge of the window.
    {L"BUTTON", L"Fertig", WS_TABSTOP, "cmdDone", {290, 190, 90, 25}},
};

void NameWindow(HWND window, const char* name) {
    SetPropA(window, "ControlName", reinterpret_cast<HANDLE>(ULONG_PTR{GlobalAddAtomA(name)}));
}

LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

template <std::size_t Count>
HWND Build(const char* name, const Piece (&pieces)[Count]) {
    WNDCLASSW facts = {};
    facts.lpfnWndProc = FormProcedure;
    facts.hInstance = GetModuleHandleW(nullptr);
    facts.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    facts.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    facts.lpszClassName = FormClass;
    RegisterClassW(&facts);
    HWND form = CreateWindowW(FormClass, L"Schief", WS_OVERLAPPEDWINDOW, 50, 50, 420, 230, nullptr,
                              nullptr, facts.hInstance, nullptr);
    NameWindow(form, name);
    HDC screen = GetDC(nullptr);
    HFONT font = CreateFontW(-MulDiv(8, GetDeviceCaps(screen, LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL,
                             FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                             CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Tahoma");
    ReleaseDC(nullptr, screen);
    HWND first = nullptr;
    for (const Piece& piece : pieces) {
        HWND control =
            CreateWindowW(piece.windowClass, piece.text, piece.style | WS_CHILD | WS_VISIBLE,
                          piece.area.left, piece.area.top, piece.area.right, piece.area.bottom,
                          piece.buried ? first : form, nullptr, facts.hInstance, nullptr);
        if (!first) first = control;
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        NameWindow(control, piece.name);
    }
    return form;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
    const bool bent = std::string(arguments) == "crooked";
    HWND form = bent ? Build("frmCrooked", Bent) : Build("frmStraight", Straight);
    ShowWindow(form, SW_SHOW);
    SetFocus(GetNextDlgTabItem(form, nullptr, FALSE));
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(form, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
