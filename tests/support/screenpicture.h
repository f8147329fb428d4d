#pragma once

#include <windows.h>

#include <doctest/doctest.h>

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

// The inside of a window in pixels of the screen.
inline RECT ClientOnScreen(HWND window) {
    RECT area = {};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace support
