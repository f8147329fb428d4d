#include "endtoend/monkey/watch.h"

#include <algorithm>
#include <cstdio>

#include "endtoend/automation.h"
#include "endtoend/hands/hand.h"
#include "platform/win32/handle.h"

namespace endtoend {
namespace {

constexpr int Ticks = 40;
constexpr DWORD TickLength = 50;
// Of a tick, in milliseconds. It takes longer where others have a share of the processor.
constexpr ULONGLONG Work = 10;

// So long nothing may move before a picture counts.
constexpr int StillLooks = 6;
constexpr DWORD BetweenLooks = 50;
constexpr int PatienceOfLooks = 40;

// Milliseconds of processor time.
ULONGLONG TimeOf(HANDLE thread) {
    FILETIME made, ended, kernel, user;
    if (!GetThreadTimes(thread, &made, &ended, &kernel, &user)) return 0;
    const auto number = [](const FILETIME& time) {
        return (static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    };
    return (number(kernel) + number(user)) / 10000;
}

void Tick() {
    Sleep(TickLength - static_cast<DWORD>(Work));
    const ULONGLONG begin = TimeOf(GetCurrentThread());
    while (TimeOf(GetCurrentThread()) - begin < Work) {
    }
}

// All windows on the screen and where they are: one that comes or goes covers others.
std::vector<std::pair<HWND, RECT>> OnScreen() {
    std::vector<std::pair<HWND, RECT>> windows;
    for (const HWND window : Application(0).TopLevel()) {
        if (!IsWindowVisible(window)) continue;
        windows.emplace_back(window, RECT{});
        GetWindowRect(window, &windows.back().second);
    }
    return windows;
}

bool Same(const std::vector<std::pair<HWND, RECT>>& one,
          const std::vector<std::pair<HWND, RECT>>& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const auto& first, const auto& second) {
                          return first.first == second.first &&
                                 EqualRect(&first.second, &second.second);
                      });
}

bool AlmostSame(const Picture& one, const Picture& other) {
    // A caret or the digits of a clock.
    constexpr int Few = 250;
    return one.pixels.size() == other.pixels.size() &&
           Difference(one, other, one.area).different <= Few;
}

// False when it moves all the time.
bool WaitStill(HWND window, Picture& picture) {
    int still = 0;
    picture = Shown(window);
    for (int look = 0; look < PatienceOfLooks && still < StillLooks; ++look) {
        Sleep(BetweenLooks);
        Picture next = Shown(window);
        still = Answers(window, 1) && AlmostSame(picture, next) ? still + 1 : 0;
        picture = std::move(next);
    }
    return still >= StillLooks;
}

std::vector<std::string> Differing(HWND window, const Picture& one, const Picture& other) {
    constexpr int Least = 60;
    constexpr int Percent = 35;
    std::vector<std::string> names;
    for (const HWND control : WindowsBelow(window)) {
        if (!IsWindowVisible(control)) continue;
        RECT area = {};
        GetWindowRect(control, &area);
        const Share share = Difference(one, other, area);
        if (share.all < Least || share.different * 100 < share.all * Percent) continue;
        names.push_back(SeenName(control) + ' ' +
                        std::to_string(share.different * 100 / share.all) + " %");
    }
    const Share whole = Difference(one, other, one.area);
    if (names.empty() && whole.different * 100 > whole.all * 3) {
        names.push_back("the window " + std::to_string(whole.different) + " pixels");
    }
    return names;
}

}  // namespace

bool ComesInTwoSeconds(const std::function<bool()>& come) {
    for (int tick = 0; tick < Ticks; ++tick) {
        if (come()) return true;
        Tick();
    }
    return come();
}

bool AnswersInTwoSeconds(HWND window) {
    if (Answers(window, TickLength)) return true;
    const platform::win32::KernelHandle thread(
        OpenThread(THREAD_QUERY_INFORMATION, FALSE, GetWindowThreadProcessId(window, nullptr)));
    const ULONGLONG begin = TimeOf(thread.Get());
    ULONGLONG before = begin;
    for (int resting = 0; resting < Ticks && before - begin < Ticks * TickLength;) {
        if (Answers(window, TickLength) || !IsWindow(window)) return true;
        const ULONGLONG now = TimeOf(thread.Get());
        if (now == before) ++resting;
        before = now;
    }
    return false;
}

Picture Shown(HWND window) {
    Picture picture;
    RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    RECT place = {};
    GetWindowRect(window, &place);
    if (!IntersectRect(&picture.area, &place, &screen)) return picture;
    const int width = picture.area.right - picture.area.left;
    const int height = picture.area.bottom - picture.area.top;

    BITMAPINFOHEADER format = {};
    format.biSize = sizeof format;
    format.biWidth = width;
    format.biHeight = -height;
    format.biPlanes = 1;
    format.biBitCount = 32;
    picture.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    HDC desktop = GetDC(nullptr);
    HDC copy = CreateCompatibleDC(desktop);
    const platform::win32::BitmapHandle bitmap(CreateCompatibleBitmap(desktop, width, height));
    const HGDIOBJ before = SelectObject(copy, bitmap.Get());
    BitBlt(copy, 0, 0, width, height, desktop, picture.area.left, picture.area.top, SRCCOPY);
    SelectObject(copy, before);
    GetDIBits(copy, bitmap.Get(), 0, static_cast<UINT>(height), picture.pixels.data(),
              reinterpret_cast<BITMAPINFO*>(&format), DIB_RGB_COLORS);
    DeleteDC(copy);
    ReleaseDC(nullptr, desktop);
    for (std::uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
    return picture;
}

Share Difference(const Picture& one, const Picture& other, const RECT& area) {
    Share share;
    RECT part = {};
    if (!EqualRect(&one.area, &other.area) || !IntersectRect(&part, &one.area, &area)) return share;
    const LONG width = one.area.right - one.area.left;
    for (LONG y = part.top; y < part.bottom; ++y) {
        for (LONG x = part.left; x < part.right; ++x) {
            const auto at =
                static_cast<std::size_t>((y - one.area.top) * width + x - one.area.left);
            ++share.all;
            share.different += one.pixels[at] != other.pixels[at];
        }
    }
    return share;
}

void Picture::Write(const std::string& file) const {
    BITMAPINFOHEADER format = {};
    format.biSize = sizeof format;
    format.biWidth = area.right - area.left;
    format.biHeight = -(area.bottom - area.top);
    format.biPlanes = 1;
    format.biBitCount = 32;
    const std::size_t size = pixels.size() * sizeof(std::uint32_t);
    BITMAPFILEHEADER head = {};
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof head + sizeof format;
    head.bfSize = static_cast<DWORD>(head.bfOffBits + size);
    std::FILE* output = std::fopen(file.c_str(), "wb");
    if (!output) return;
    std::fwrite(&head, sizeof head, 1, output);
    std::fwrite(&format, sizeof format, 1, output);
    std::fwrite(pixels.data(), 1, size, output);
    std::fclose(output);
}

// What differs is only believed when a second drawing anew brings the same: a machine that is busy
// may draw late.
Unpainted LookForUnpainted(HWND window) {
    Unpainted look;
    const auto windows = OnScreen();
    if (!WaitStill(window, look.before)) return look;
    for (int times = 0; times < 2; ++times) {
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        if (!WaitStill(window, look.after)) return look;
        if (!Same(windows, OnScreen())) return look;
        look.controls = Differing(window, look.before, look.after);
        if (look.controls.empty()) break;
    }
    look.told = true;
    return look;
}

}  // namespace endtoend
