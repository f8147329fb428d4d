#pragma once

#include <map>
#include <string>
#include <vector>

#include "toolkit/canvas.h"

namespace controls_test {

// Keeps what was drawn, one line a call, e.g. "FillRect 0,0 75x23 face". Colours are named, and a
// system colour gets its name only when it has been looked up before drawing.
class RecordingCanvas final : public toolkit::Canvas {
  public:
    std::vector<std::string> calls;

    toolkit::Colour Translate(toolkit::Colour colour) const override {
        return colour & 0x80000000u ? LookedUp + (colour & 0xFF) : colour;
    }
    void FillRect(toolkit::Rect area, toolkit::Colour colour) override {
        calls.push_back("FillRect " + Words(area) + " " + Name(colour));
    }
    void FrameRect(toolkit::Rect area, toolkit::Colour colour) override {
        calls.push_back("FrameRect " + Words(area) + " " + Name(colour));
    }
    void Line(toolkit::Point from, toolkit::Point to, toolkit::Colour colour) override {
        calls.push_back("Line " + Words(from) + " " + Words(to) + " " + Name(colour));
    }
    void Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour,
              toolkit::TextAlign align) override {
        calls.push_back("Text " + Words(area) + " \"" + std::string(text) + "\" " + Name(colour) +
                        (align == toolkit::TextAlign::Centre ? " centred" : " left"));
    }
    toolkit::Size TextSize(std::string_view text) const override {
        return {static_cast<int>(text.size()) * 6, 13};
    }
    void FocusRect(toolkit::Rect area) override { calls.push_back("FocusRect " + Words(area)); }

  private:
    static constexpr toolkit::Colour LookedUp = 0x50000000;

    static std::string Name(toolkit::Colour colour) {
        static const std::map<toolkit::Colour, std::string> names{
            {0, "black"},
            {0xFFFFFF, "white"},
            {LookedUp + 15, "face"},
            {LookedUp + 16, "shadow"},
            {LookedUp + 18, "text"},
            {LookedUp + 20, "highlight"},
            {LookedUp + 21, "darkShadow"},
            {LookedUp + 22, "light"},
        };
        const auto found = names.find(colour);
        return found == names.end() ? "unknown " + std::to_string(colour) : found->second;
    }
    static std::string Words(toolkit::Point point) {
        return std::to_string(point.x) + "," + std::to_string(point.y);
    }
    static std::string Words(toolkit::Rect area) {
        return Words(toolkit::Point{area.left, area.top}) + " " + std::to_string(area.width) + "x" +
               std::to_string(area.height);
    }
};

}  // namespace controls_test
