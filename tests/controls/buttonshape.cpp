#include "controls/buttonshape.h"

#include <doctest/doctest.h>

#include <set>

#include "controls/watchedbutton.h"

using controls::Corner;
using controls::RegionOf;
using controls::Shape;
using controls_test::Client;
using controls_test::RecordingCanvas;
using controls_test::WatchedButton;
using toolkit::Point;
using toolkit::Rect;
using toolkit::Region;
using Calls = std::vector<std::string>;

namespace {

using Places = std::set<std::pair<int, int>>;

// The pixels of the client area that lie in a region of rectangles.
Places Inside(const Region& region, Rect client) {
    Places places;
    for (int y = client.top; y < client.Bottom(); ++y) {
        for (int x = client.left; x < client.Right(); ++x) {
            for (const auto& part : region) {
                if (part.area.Contains({x, y})) places.insert({x, y});
            }
        }
    }
    return places;
}

// Those of them that touch one which is not in it.
Places Border(const Places& inside) {
    Places border;
    for (const auto& [x, y] : inside) {
        const bool within = inside.count({x - 1, y}) && inside.count({x + 1, y}) &&
                            inside.count({x, y - 1}) && inside.count({x, y + 1});
        if (!within) border.insert({x, y});
    }
    return border;
}

// Notes the pixels that lines and single pixels set.
class PixelCanvas final : public toolkit::Canvas {
  public:
    Places set;

    toolkit::Colour Translate(toolkit::Colour colour) const override { return colour; }
    void FillRect(Rect, toolkit::Colour) override {}
    void FrameRect(Rect, toolkit::Colour) override {}
    void Line(Point from, Point to, toolkit::Colour) override {
        if (from.y == to.y) {
            for (int x = from.x; x < to.x; ++x) set.insert({x, from.y});
        } else {
            for (int y = from.y; y < to.y; ++y) set.insert({from.x, y});
        }
    }
    void Ellipse(Rect, toolkit::Colour) override {}
    void Pixel(Point at, toolkit::Colour) override { set.insert({at.x, at.y}); }
    void Background(Rect) override {}
    void UseFont(const toolkit::Font&) override {}
    void Text(Rect, std::string_view, toolkit::Colour) override {}
    toolkit::Size TextSize(std::string_view, int) const override { return {}; }
    void FocusRect(Rect) override {}
    void Draw(const toolkit::Picture&, Point) override {}
    toolkit::Pixels PixelsOf(const toolkit::Picture&) const override { return {}; }
    toolkit::Pixels PixelsAt(Rect) const override { return {}; }
    void PutPixels(Rect, const toolkit::Pixels&) override {}
};

}  // namespace

TEST_CASE("the outline of a shape runs along the border of its region, all around") {
    for (const Shape shape :
         {Shape{Corner::Round, 4}, Shape{Corner::Cut, 5}, Shape{Corner::Notch, 3},
          Shape{Corner::HalfRound}, Shape{Corner::Round, 9},
          Shape{Corner::Round, 6, controls::UpperLeft | controls::LowerRight}}) {
        CAPTURE(static_cast<int>(shape.corner));
        PixelCanvas canvas;
        DrawOutline(canvas, Client, shape, 0, 0, 0);
        const Places inside = Inside(RegionOf(Client, shape), Client);
        for (const auto& place : canvas.set) CHECK(inside.count(place) == 1);
        for (const auto& place : Border(inside)) {
            CAPTURE(place.first);
            CAPTURE(place.second);
            CHECK(canvas.set.count(place) == 1);
        }
    }
}

TEST_CASE("a square shape needs no region") {
    CHECK(RegionOf(Client, {}).empty());
}

TEST_CASE("a region's straight sides lie outside of the window, by the inflated area") {
    const Region region = RegionOf(Client, {Corner::Cut, 2});
    REQUIRE(region.size() == 5);
    CHECK(region[0].area == Rect{2, 0, 71, 1});
    CHECK(region[1].area == Rect{1, 1, 73, 1});
    CHECK(region[2].area == Rect{-1, 2, 77, 19});
    CHECK(region[3].area == Rect{2, 22, 71, 1});
    CHECK(region[4].area == Rect{1, 21, 73, 1});
    for (const auto& part : region) CHECK_FALSE(part.isEllipse);
}

TEST_CASE("corners that are not named stay square") {
    const Region region = RegionOf(Client, {Corner::Cut, 2, controls::UpperRight});
    REQUIRE(region.size() == 3);
    CHECK(region[0].area == Rect{-1, 0, 74, 1});
    CHECK(region[1].area == Rect{-1, 1, 75, 1});
    CHECK(region[2].area == Rect{-1, 2, 77, 22});
}

TEST_CASE("the region of an ellipse is inflated and moved by a pixel each way") {
    const Region region = RegionOf(Client, {Corner::Ellipse});
    REQUIRE(region.size() == 1);
    CHECK(region[0].isEllipse);
    CHECK(region[0].area == Rect{0, 0, 77, 25});
}

TEST_CASE("looks 7 to 14 have a shape, except the transparent one; those before have none") {
    for (std::int16_t look = 1; look <= 14; ++look) {
        CAPTURE(look);
        const bool shaped = controls::ShapeOf(look).corner != Corner::Square;
        CHECK(shaped == (look >= 7 && look != 11));
        CHECK((controls::ShapeOf(look).corner == Corner::Ellipse) == (look == 14));
    }
}

TEST_CASE("a window is given its shape when it is there and whenever its size or look changes") {
    WatchedButton test;
    CHECK(test.view.regions.empty());
    test.button.SetButtonType(8);
    REQUIRE(test.view.regions.size() == 1);
    CHECK(test.view.regions[0].size() == RegionOf(Client, controls::ShapeOf(8)).size());
    test.button.Resize({0, 0, 90, 30});
    REQUIRE(test.view.regions.size() == 2);
    CHECK(Inside(test.view.regions[1], {0, 0, 90, 30}).count({89, 15}) == 1);
    test.button.SetButtonType(2);
    REQUIRE(test.view.regions.size() == 3);
    CHECK(test.view.regions[2].empty());
    test.button.Resize(Client);
    CHECK(test.view.regions.size() == 3);
}

TEST_CASE("a button without a shape never touches its window's region") {
    WatchedButton test;
    test.button.Resize({0, 0, 90, 30});
    test.button.SetButtonType(1);
    test.button.SetButtonType(11);
    CHECK(test.view.regions.empty());
}

TEST_CASE("no region is set while the button is being set up") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmTest", "", {});
    controls_test::TestView view;
    auto& button = form.Add<controls::chameleonButton>("cmdTest", machine.clock);
    button.SetView(&view);
    button.SetButtonType(9);
    button.Resize(Client);
    CHECK(view.regions.empty());
    button.Show(Client);
    CHECK(view.regions.size() == 1);
    button.SetView(nullptr);
}
