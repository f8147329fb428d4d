#include "controls/buttonshape.h"

#include <algorithm>

namespace controls {

using toolkit::Colour;
using toolkit::Rect;

namespace {

// The form of one corner: how far each of its rows stands back from the side, the outermost first.
struct Steps {
    Corner corner;
    int rows = 0;

    int operator[](int row) const {
        if (row >= rows) return 0;
        if (corner == Corner::Notch) return rows;
        if (corner == Corner::Cut) return rows - row;
        // The first pixel of the row whose middle lies within the circle. Twice all lengths, so
        // that middles are whole numbers.
        const int height = 2 * (rows - row) - 1;
        int back = 0;
        for (; back < rows; ++back) {
            const int width = 2 * (rows - back) - 1;
            if (width * width + height * height <= 4 * rows * rows) break;
        }
        return back;
    }
};

Steps StepsOf(Rect area, Shape shape, std::uint8_t corner, int depth = 0) {
    if (!(shape.corners & corner) || shape.corner == Corner::Square) return {shape.corner, 0};
    if (shape.corner == Corner::HalfRound) {
        return {shape.corner, std::min(area.width, area.height) / 2};
    }
    // Circles around the same middle; the other forms keep their size.
    const bool shrinks = shape.corner == Corner::Round;
    return {shape.corner, std::max(shrinks ? shape.size - depth : shape.size, 0)};
}

// The pixels of a corner that are on no straight side. `x` and `y` are the corner's own pixel, the
// directions lead into the area.
void DrawCorner(toolkit::Canvas& canvas, Steps steps, int x, int y, int right, int down,
                Colour colour) {
    for (int row = 1; row <= steps.rows; ++row) {
        const int end = std::max(steps[row] + 1, steps[row - 1]);
        for (int back = steps[row]; back < end; ++back) {
            canvas.Pixel({x + right * back, y + down * row}, colour);
        }
    }
}

}  // namespace

// A line's second point is not drawn, so that the lower right side owns the square corners at both
// of its ends.
void DrawOutline(toolkit::Canvas& canvas, Rect whole, Shape shape, int depth, Colour upperLeft,
                 Colour lowerRight) {
    const Rect area = whole.Inset(depth);
    if (shape.corner == Corner::Ellipse) {
        // The region reaches a pixel further to the right and below.
        if (depth == 0) {
            canvas.Ellipse({area.left, area.top, area.width + 1, area.height + 1}, upperLeft);
        }
        canvas.Ellipse(area, upperLeft);
        return;
    }
    const int right = area.Right() - 1;
    const int bottom = area.Bottom() - 1;
    const Steps first = StepsOf(area, shape, UpperLeft, depth);
    const Steps second = StepsOf(area, shape, UpperRight, depth);
    const Steps third = StepsOf(area, shape, LowerLeft, depth);
    const Steps fourth = StepsOf(area, shape, LowerRight, depth);
    canvas.Line({area.left + first[0], area.top},
                {right - second[0] + (second.rows ? 1 : 0), area.top}, upperLeft);
    canvas.Line({area.left, area.top + first.rows}, {area.left, bottom - third.rows}, upperLeft);
    canvas.Line({right, area.top + second.rows}, {right, bottom - fourth.rows}, lowerRight);
    canvas.Line({area.left + third[0], bottom}, {right + 1 - fourth[0], bottom}, lowerRight);
    DrawCorner(canvas, first, area.left, area.top, 1, 1, upperLeft);
    DrawCorner(canvas, second, right, area.top, -1, 1, lowerRight);
    DrawCorner(canvas, third, area.left, bottom, 1, -1, lowerRight);
    DrawCorner(canvas, fourth, right, bottom, -1, -1, lowerRight);
}

toolkit::Region RegionOf(Rect client, Shape shape) {
    if (shape.corner == Corner::Square) return {};
    const Rect inflated = client.Inset(-1);
    if (shape.corner == Corner::Ellipse) {
        return {{{inflated.left + 1, inflated.top + 1, inflated.width, inflated.height}, true}};
    }
    toolkit::Region region;
    const auto addRow = [&](int top, int height, int left, int right) {
        // A row that reaches a side reaches the inflated one.
        const int begin = left ? client.left + left : inflated.left;
        const int end = right ? client.Right() - right : inflated.Right();
        region.push_back({{begin, top, end - begin, height}});
    };
    const Steps first = StepsOf(client, shape, UpperLeft);
    const Steps second = StepsOf(client, shape, UpperRight);
    const Steps third = StepsOf(client, shape, LowerLeft);
    const Steps fourth = StepsOf(client, shape, LowerRight);
    const int above = std::max(first.rows, second.rows);
    const int below = std::max(third.rows, fourth.rows);
    for (int row = 0; row < above; ++row) addRow(client.top + row, 1, first[row], second[row]);
    const int middle = above ? client.top + above : inflated.top;
    const int end = below ? client.Bottom() - below : inflated.Bottom();
    addRow(middle, end - middle, 0, 0);
    for (int row = 0; row < below; ++row) {
        addRow(client.Bottom() - 1 - row, 1, third[row], fourth[row]);
    }
    return region;
}

}  // namespace controls
