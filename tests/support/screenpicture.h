#pragma once

#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/win32/handle.h"

namespace support {

// What the screen shows there, row by row from below, each pixel as 0x00RRGGBB. Asked pixel by
// pixel, the screen would take seconds to answer.
inline std::vector<DWORD> ScreenPixels(const RECT& area) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const platform::win32::BitmapHandle bitmap(
        CreateDIBSection(screen, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    REQUIRE(bitmap);
    const HDC copy = CreateCompatibleDC(screen);
    const HGDIOBJ before = SelectObject(copy, bitmap.Get());
    BitBlt(copy, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    GdiFlush();
    SelectObject(copy, before);
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);
    const auto* first = static_cast<const DWORD*>(bits);
    std::vector<DWORD> pixels(first, first + width * height);
    for (DWORD& pixel : pixels) pixel &= 0xFFFFFF;
    return pixels;
}

// Where two pictures of the same area are not the same, and what the first such pixel from below
// is; nothing where they are.
inline std::string Difference(const std::vector<DWORD>& before, const std::vector<DWORD>& after,
                              const RECT& area) {
    const int width = area.right - area.left;
    if (before.size() != after.size() || width <= 0) return "pictures of another size";
    RECT box = {width, static_cast<LONG>(before.size()), -1, -1};
    int count = 0;
    std::string first;
    for (std::size_t at = 0; at < before.size(); ++at) {
        if (before[at] == after[at]) continue;
        const LONG x = static_cast<LONG>(at) % width;
        const LONG y = area.bottom - area.top - 1 - static_cast<LONG>(at) / width;
        box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x),
               std::max(box.bottom, y)};
        char colours[40];
        std::snprintf(colours, sizeof colours, "%06lX, then %06lX", before[at], after[at]);
        if (count++ == 0) first = colours;
    }
    if (count == 0) return "";
    char place[80];
    std::snprintf(place, sizeof place, "%d pixels in (%ld, %ld) to (%ld, %ld): ", count, box.left,
                  box.top, box.right, box.bottom);
    return place + first;
}

// The inside of a window in pixels of the screen.
inline RECT ClientOnScreen(HWND window) {
    RECT area = {};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace support
