// Records whose size XP checks. The headers make some of them larger for newer systems, and a call
// with the larger size fails on XP without a word, so the sizes are stated here.

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <cstddef>

static_assert(sizeof(NONCLIENTMETRICSW) == 500);
static_assert(sizeof(LVCOLUMNW) == 32);
static_assert(sizeof(LVITEMW) == 52);
static_assert(sizeof(STARTUPINFOA) == 68);
// Without gaps between its fields.
static_assert(sizeof(SHFILEOPSTRUCTA) == 30);
// These two have grown all the same; code must name the size of the older form.
static_assert(NOTIFYICONDATAW_V2_SIZE == 936);
static_assert(offsetof(TTTOOLINFOA, lParam) == 40);
static_assert(offsetof(TTTOOLINFOW, lParam) == 40);
