#pragma once

namespace toolkit {

// Pixels.
struct Point {
    int x = 0;
    int y = 0;
};

struct Size {
    int width = 0;
    int height = 0;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
    bool Contains(Point point) const {
        return point.x >= left && point.x < Right() && point.y >= top && point.y < Bottom();
    }
    // Smaller by that much on each of the four sides; larger for a negative amount.
    Rect Inset(int amount) const {
        return {left + amount, top + amount, width - 2 * amount, height - 2 * amount};
    }
};

}  // namespace toolkit
