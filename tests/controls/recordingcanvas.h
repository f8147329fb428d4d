#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "toolkit/canvas.h"

namespace controls_test {

// A picture whose own pixels the test gives.
struct TestPicture final : toolkit::Picture {
    TestPicture(Kind kind, toolkit::Size size, std::string title, toolkit::Pixels own = {})
        : Picture(kind, size), name(std::move(title)), pixels(std::move(own)) {}

    std::string name;
    toolkit::Pixels pixels;
};

// Keeps what was drawn, one line a call, e.g. "FillRect 0,0 75x23 face". Colours are named, or told
// as red, green and blue; a system colour gets its name only when it has been looked up before
// drawing. Letters are 6 by 13 pixels.
class RecordingCanvas final : public toolkit::Canvas {
  public:
    std::vector<std::string> calls;
    bool fails = false;
    // How often a system colour was looked up, and a text measured.
    mutable int lookUps = 0;
    mutable int measures = 0;
    // What is on the screen before drawing, and what an icon's drawing makes of it.
    toolkit::Pixels behind;
    toolkit::Pixels withIcon;
    // What PutPixels got.
    toolkit::Pixels put;

    toolkit::Colour Translate(toolkit::Colour colour) const override {
        static const std::map<toolkit::Colour, toolkit::Colour> system{
            {13, Accent},    {15, Face},       {16, Shadow},   {18, TextColour},
            {20, Highlight}, {21, DarkShadow}, {22, HalfLight}};
        if (!(colour & 0x80000000u)) return colour;
        ++lookUps;
        return system.at(colour & 0xFF);
    }
    void FillRect(toolkit::Rect area, toolkit::Colour colour) override {
        if (fails) throw std::runtime_error("no memory");
        calls.push_back("FillRect " + Words(area) + " " + Name(colour));
    }
    void FrameRect(toolkit::Rect area, toolkit::Colour colour) override {
        calls.push_back("FrameRect " + Words(area) + " " + Name(colour));
    }
    void Line(toolkit::Point from, toolkit::Point to, toolkit::Colour colour) override {
        calls.push_back("Line " + Words(from) + " " + Words(to) + " " + Name(colour));
    }
    void Ellipse(toolkit::Rect area, toolkit::Colour colour) override {
        calls.push_back("Ellipse " + Words(area) + " " + Name(colour));
    }
    void Pixel(toolkit::Point at, toolkit::Colour colour) override {
        calls.push_back("Pixel " + Words(at) + " " + Name(colour));
    }
    void Background(toolkit::Rect area) override { calls.push_back("Background " + Words(area)); }
    void UseFont(const toolkit::Font& font) override { calls.push_back("UseFont " + font.name); }
    void Text(toolkit::Rect area, std::string_view text, toolkit::Colour colour) override {
        calls.push_back("Text " + Words(area) + " \"" + std::string(text) + "\" " + Name(colour));
    }
    toolkit::Size TextSize(std::string_view text, int width) const override {
        ++measures;
        const int letters = static_cast<int>(text.size());
        const int perLine = std::max(width / 6, 1);
        return {std::min(letters, perLine) * 6, (letters + perLine - 1) / perLine * 13};
    }
    void FocusRect(toolkit::Rect area) override { calls.push_back("FocusRect " + Words(area)); }
    void Draw(const toolkit::Picture& picture, toolkit::Point at) override {
        calls.push_back("Draw " + dynamic_cast<const TestPicture&>(picture).name + " " + Words(at));
        iconDrawn_ = true;
    }
    toolkit::Pixels PixelsOf(const toolkit::Picture& bitmap) const override {
        return dynamic_cast<const TestPicture&>(bitmap).pixels;
    }
    toolkit::Pixels PixelsAt(toolkit::Rect area) const override {
        toolkit::Pixels pixels = iconDrawn_ ? withIcon : behind;
        pixels.resize(static_cast<std::size_t>(area.width * area.height));
        return pixels;
    }
    void PutPixels(toolkit::Rect area, const toolkit::Pixels& pixels) override {
        calls.push_back("PutPixels " + Words(area));
        put = pixels;
    }

    static constexpr toolkit::Colour Face = 0xC8D0D4;
    static constexpr toolkit::Colour Shadow = 0x808080;
    static constexpr toolkit::Colour TextColour = 0x000010;
    static constexpr toolkit::Colour Highlight = 0xFFFFFE;
    static constexpr toolkit::Colour DarkShadow = 0x404040;
    static constexpr toolkit::Colour HalfLight = 0xE0E0E0;
    static constexpr toolkit::Colour Accent = 0x6A240A;

  private:
    static std::string Name(toolkit::Colour colour) {
        static const std::map<toolkit::Colour, std::string> names{
            {0, "black"},       {0xFFFFFF, "white"},        {Face, "face"},
            {Shadow, "shadow"}, {TextColour, "text"},       {Highlight, "highlight"},
            {Accent, "accent"}, {DarkShadow, "darkShadow"}, {HalfLight, "light"},
        };
        const auto found = names.find(colour);
        if (found != names.end()) return found->second;
        char number[16];
        std::snprintf(number, sizeof number, "#%02X%02X%02X", colour & 0xFF, colour >> 8 & 0xFF,
                      colour >> 16);
        return number;
    }
    static std::string Words(toolkit::Point point) {
        return std::to_string(point.x) + "," + std::to_string(point.y);
    }
    static std::string Words(toolkit::Rect area) {
        return Words(toolkit::Point{area.left, area.top}) + " " + std::to_string(area.width) + "x" +
               std::to_string(area.height);
    }

    bool iconDrawn_ = false;
};

}  // namespace controls_test
