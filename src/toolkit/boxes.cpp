#include "toolkit/controls.h"
#include "toolkit/layout.h"

namespace toolkit {
namespace {

Box WithChildren(BoxKind kind, std::vector<Box> children) {
    Box box;
    box.kind = kind;
    box.children = std::move(children);
    return box;
}

}  // namespace

Box Leaf(Control& control) {
    Box box;
    box.kind = BoxKind::Leaf;
    box.control = &control;
    return box;
}

Box Row(std::vector<Box> children) {
    return WithChildren(BoxKind::Row, std::move(children));
}

Box Column(std::vector<Box> children) {
    return WithChildren(BoxKind::Column, std::move(children));
}

Box Grid(int columns, std::vector<Box> children) {
    Box box = WithChildren(BoxKind::Grid, std::move(children));
    box.columns = columns;
    return box;
}

Box InFrame(Frame& frame, Box content) {
    Box box;
    box.kind = BoxKind::Frame;
    box.control = &frame;
    box.children.push_back(std::move(content));
    return box;
}

Box Pages(TabStrip& tabs, std::vector<Box> pages) {
    Box box = WithChildren(BoxKind::Tabs, std::move(pages));
    box.control = &tabs;
    return box;
}

Box Space(int width, int height) {
    Box box;
    box.least = {width, height};
    return box;
}

Box Filler() {
    return Stretch(Space(0, 0));
}

Box Stretch(Box box, int share) {
    box.stretch = share;
    return box;
}

Box Gap(Box box, int gap) {
    box.gap = gap;
    return box;
}

Box Margin(Box box, int margin) {
    box.margin = margin;
    return box;
}

Box AtLeast(Box box, int width, int height) {
    box.least = {width, height};
    return box;
}

Box AtMost(Box box, int width, int height) {
    box.most = {width, height};
    return box;
}

Box KeepSize(Box box) {
    box.keepsSize = true;
    return box;
}

}  // namespace toolkit
