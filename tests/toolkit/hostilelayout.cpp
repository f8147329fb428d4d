#include <doctest/doctest.h>

#include <random>

#include "toolkit/layoutfixture.h"

using namespace toolkit;

namespace {

// Trees of boxes of every kind, as a seed makes them.
class Grower {
  public:
    Grower(LayoutFixture& fixture, unsigned seed) : fixture_(fixture), random_(seed) {}

    Box Grow(int depth) {
        Box box = depth == 0 ? SomeLeaf() : SomeNest(depth);
        box.gap = Below(9);
        box.margin = Below(5);
        box.stretch = Below(3);
        box.keepsSize = Below(4) == 0;
        if (Below(5) == 0) box.least = {Below(60), Below(60)};
        return box;
    }

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  private:
    Box SomeLeaf() {
        return Below(4) == 0 ? Space(Below(20), Below(20)) : fixture_.Text(Below(15));
    }

    Box SomeNest(int depth) {
        std::vector<Box> children;
        for (int i = Below(4); i >= 0; --i) children.push_back(Grow(depth - 1));
        switch (Below(5)) {
            case 0:
                return Row(std::move(children));
            case 1:
                return Column(std::move(children));
            case 2:
                return Grid(1 + Below(3), std::move(children));
            case 3:
                return InFrame(fixture_.form.Add<Frame>(NewName(), "Rahmen"),
                               std::move(children.front()));
            default:
                return Pages(fixture_.form.Add<TabStrip>(
                                 NewName(), std::vector<std::string>(children.size(), "Seite")),
                             std::move(children));
        }
    }

    std::string NewName() { return "nest" + std::to_string(++fixture_.made); }

    LayoutFixture& fixture_;
    std::mt19937 random_;
};

bool Inside(const Rect& area, const Rect& whole) {
    return area.left >= whole.left && area.top >= whole.top && area.Right() <= whole.Right() &&
           area.Bottom() <= whole.Bottom();
}

}  // namespace

TEST_CASE("whatever the tree and however small the area, no control has a negative size") {
    for (unsigned seed = 0; seed < 300; ++seed) {
        CAPTURE(seed);
        LayoutFixture fixture;
        Grower grower(fixture, seed);
        const Box box = grower.Grow(4);
        for (int size : {0, 1, 7, 50, 300, 2000}) {
            for (const Rect& area : fixture.Areas(box, {0, 0, size, size})) {
                REQUIRE(area.width >= 0);
                REQUIRE(area.height >= 0);
            }
        }
    }
}

TEST_CASE("given at least the size it wants, a tree keeps every control inside its area") {
    for (unsigned seed = 0; seed < 300; ++seed) {
        CAPTURE(seed);
        LayoutFixture fixture;
        Grower grower(fixture, seed);
        const Box box = grower.Grow(4);
        const Size wanted = fixture.SizeOf(box);
        for (int more : {0, 1, 100}) {
            const Rect whole{30, 40, wanted.width + more, wanted.height + more};
            for (const Placement& placement : Arrange(box, whole, fixture.text)) {
                REQUIRE(Inside(placement.area, whole));
                const Size natural = Measure(Leaf(*placement.control), fixture.text);
                REQUIRE(placement.area.width >= natural.width);
                REQUIRE(placement.area.height >= natural.height);
            }
        }
    }
}

TEST_CASE("the same tree and area give the same places") {
    LayoutFixture fixture;
    const Box box = Grower(fixture, 7).Grow(4);
    CHECK(fixture.Areas(box, {0, 0, 333, 222}) == fixture.Areas(box, {0, 0, 333, 222}));
}

TEST_CASE("a deep tree is placed at once") {
    LayoutFixture fixture;
    Box box = fixture.Text(1);
    for (int i = 0; i < 150; ++i) {
        box = i % 2 == 0 ? Row({std::move(box)}) : Grid(1, {std::move(box)});
    }
    CHECK(fixture.Areas(box, {0, 0, 100, 100}).size() == 1);
}
