#pragma once

#include <doctest/doctest.h>

#include <map>
#include <string>
#include <vector>

#include "toolkit/controls.h"
#include "toolkit/drawncontrol.h"
#include "toolkit/journal.h"
#include "toolkit/layout.h"

// Every character is 6 pixels wide and 13 high, bold ones 7 and 15, on a screen of `percent` of 96
// dots per inch. Access-key marks are left out, as a real screen leaves them out, and no character
// has no height.
class EvenText : public toolkit::TextMeasure {
  public:
    toolkit::Size SizeOf(std::string_view text, bool bold) const override {
        ++asked[std::string(text)];
        int characters = 0;
        for (char sign : text) characters += sign != '&';
        return {Scale(bold ? 7 : 6) * characters, text.empty() ? 0 : Scale(bold ? 15 : 13)};
    }
    int Scale(int pixels) const override { return pixels * percent / 100; }

    int percent = 100;
    // How often each text has been measured.
    mutable std::map<std::string, int> asked;
};

// As large as its caption and five pixels around it.
class DrawnBox : public toolkit::DrawnControl {
  public:
    DrawnBox(toolkit::Form& form, std::string name, std::string caption)
        : DrawnControl(form, toolkit::ControlKind::Drawn, std::move(name), std::move(caption),
                       true) {}
    const char* WindowClass() const override { return "DrawnBox"; }
    toolkit::Size NaturalSize(toolkit::Size text) const override {
        return {text.width + 10, text.height + 10};
    }
    void Paint(toolkit::Canvas&, toolkit::Rect) override {}
};

namespace toolkit {

inline bool operator==(const Size& one, const Size& other) {
    return one.width == other.width && one.height == other.height;
}

}  // namespace toolkit

namespace doctest {
template <>
struct StringMaker<toolkit::Rect> {
    static String convert(const toolkit::Rect& area) {
        const std::string text = std::to_string(area.left) + "," + std::to_string(area.top) + " " +
                                 std::to_string(area.width) + " x " + std::to_string(area.height);
        return text.c_str();
    }
};
template <>
struct StringMaker<toolkit::Size> {
    static String convert(const toolkit::Size& size) {
        const std::string text = std::to_string(size.width) + " x " + std::to_string(size.height);
        return text.c_str();
    }
};
}  // namespace doctest

struct LayoutFixture {
    NotingHost host;
    TestForm form{host};
    EvenText text;
    int made = 0;

    // A label of that many characters: 6 pixels wide each, 13 high.
    toolkit::Box Text(int characters) {
        return toolkit::Leaf(
            form.Add<toolkit::Label>("label" + std::to_string(++made),
                                     std::string(static_cast<std::size_t>(characters), 'x')));
    }

    // A group of controls that fills what it is given: a row with nothing but room of that size.
    toolkit::Box Group(int width, int height) {
        auto& frame = form.Add<toolkit::Frame>("frame" + std::to_string(++made), "");
        toolkit::Box box = toolkit::InFrame(frame, toolkit::Space(width - 16, height - 25));
        return box;
    }

    // Where the controls go, in the order of the tree.
    std::vector<toolkit::Rect> Areas(const toolkit::Box& box, toolkit::Rect area) const {
        std::vector<toolkit::Rect> areas;
        for (const toolkit::Placement& placement : toolkit::Arrange(box, area, text)) {
            areas.push_back(placement.area);
        }
        return areas;
    }

    toolkit::Size SizeOf(const toolkit::Box& box) const { return toolkit::Measure(box, text); }
};
