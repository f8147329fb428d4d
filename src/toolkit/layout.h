#pragma once

#include <string_view>
#include <vector>

#include "toolkit/geometry.h"

namespace toolkit {

class Control;
class Frame;
class TabStrip;

// What the layout must know of the screen: how large text is there. Everything else is counted in
// units of the 8-pixel grid, scaled with the font.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    // Of one line in the dialogs' font, bold for a page's heading; access-key marks do not count.
    virtual Size SizeOf(std::string_view text, bool bold) const = 0;
    // A number of pixels at 96 dots per inch in pixels of this screen.
    virtual int Scale(int pixels) const = 0;
};

enum class BoxKind { Leaf, Row, Column, Grid, Frame, Tabs, Space };

// A tree of boxes places the controls of a form: rows, columns, grids, frames, pages. No control
// has coordinates of its own.
struct Box {
    BoxKind kind = BoxKind::Space;
    Control* control = nullptr;
    std::vector<Box> children;
    // Columns of a grid.
    int columns = 0;
    // Distance between the children, and around them, in pixels at 96 dots per inch.
    int gap = 4;
    int margin = 0;
    // The share of what is left over along the parent's direction; 0 keeps the natural size.
    int stretch = 0;
    // At least this large, in pixels at 96 dots per inch.
    Size least;
    // Wants no more than this, in the same pixels; 0 means no limit.
    Size most;
    // Across the parent's direction: the natural size instead of the full one.
    bool keepsSize = false;
};

Box Leaf(Control& control);
Box Row(std::vector<Box> children);
Box Column(std::vector<Box> children);
// Cells from left to right, then down; a column is as wide as its widest cell, and what is left
// over goes to the columns in which a cell has a stretch.
Box Grid(int columns, std::vector<Box> children);
Box InFrame(Frame& frame, Box content);
// One child a page, in the order of the tabs.
Box Pages(TabStrip& tabs, std::vector<Box> pages);
Box Space(int width, int height);
// Takes what is left over.
Box Filler();

Box Stretch(Box box, int share = 1);
Box Gap(Box box, int gap);
Box Margin(Box box, int margin);
Box AtLeast(Box box, int width, int height);
Box AtMost(Box box, int width, int height);
Box KeepSize(Box box);

struct Placement {
    Control* control = nullptr;
    Rect area;
    // The page on which the control stands, or -1.
    int page = -1;
};

// The size that the box wants.
Size Measure(const Box& box, const TextMeasure& measure);

// Where each control goes when the box fills `area`, in the order of the tree.
std::vector<Placement> Arrange(const Box& box, Rect area, const TextMeasure& measure);

}  // namespace toolkit
