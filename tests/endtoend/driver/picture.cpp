#include "endtoend/driver/picture.h"

#include <cstdio>
#include <vector>

#include "endtoend/waiting.h"
#include "platform/win32/handle.h"

namespace endtoend {

void WritePicture(HWND window, const std::string& file) {
    RECT area = {};
    GetWindowRect(window, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;

    // 32 bits a pixel, so that rows need no padding.
    BITMAPINFOHEADER format = {};
    format.biSize = sizeof format;
    format.biWidth = width;
    format.biHeight = height;
    format.biPlanes = 1;
    format.biBitCount = 32;
    std::vector<char> pixels(static_cast<std::size_t>(width * height) * 4);

    HDC screen = GetDC(nullptr);
    HDC copy = CreateCompatibleDC(screen);
    const platform::win32::BitmapHandle bitmap(CreateCompatibleBitmap(screen, width, height));
    const HGDIOBJ before = SelectObject(copy, bitmap.Get());
    BitBlt(copy, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    SelectObject(copy, before);
    GetDIBits(copy, bitmap.Get(), 0, static_cast<UINT>(height), pixels.data(),
              reinterpret_cast<BITMAPINFO*>(&format), DIB_RGB_COLORS);
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);

    BITMAPFILEHEADER head = {};
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof head + sizeof format;
    head.bfSize = static_cast<DWORD>(head.bfOffBits + pixels.size());
    std::FILE* output = std::fopen(file.c_str(), "wb");
    if (!output) throw Failed("cannot write " + file);
    std::fwrite(&head, sizeof head, 1, output);
    std::fwrite(&format, sizeof format, 1, output);
    std::fwrite(pixels.data(), 1, pixels.size(), output);
    std::fclose(output);
}

}  // namespace endtoend
