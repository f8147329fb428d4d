#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// What is looked at after each event of the monkey.
namespace endtoend {

// Looks again and again, at least as long as two seconds take on a machine with nothing else to do.
bool ComesInTwoSeconds(const std::function<bool()>& come);

// Whether the window answers before its thread has rested for two seconds, or worked for as long.
// The time in which others have the processor counts for neither.
bool AnswersInTwoSeconds(HWND window);

// What the screen shows where a window stands.
struct Picture {
    RECT area = {};
    std::vector<std::uint32_t> pixels;

    bool operator==(const Picture& other) const { return pixels == other.pixels; }
    void Write(const std::string& file) const;
};

Picture Shown(HWND window);

// How many pixels of the area, in coordinates of the screen, are not the same.
struct Share {
    int different = 0;
    int all = 0;
};
Share Difference(const Picture& one, const Picture& other, const RECT& area);

// The controls of the window that look otherwise once everything is drawn anew, by name and how
// much of them; none when that cannot be told, as something moves. The pictures are from before and
// after that.
struct Unpainted {
    bool told = false;
    std::vector<std::string> controls;
    Picture before;
    Picture after;
};
Unpainted LookForUnpainted(HWND window);

}  // namespace endtoend
