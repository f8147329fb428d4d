#include "toolkit/geometry.h"

#include <doctest/doctest.h>

#include "toolkit/canvas.h"
#include "toolkit/layoutfixture.h"

using namespace toolkit;

TEST_CASE("an area ends where the next one may begin") {
    const Rect area{10, 20, 30, 40};
    CHECK(area.Right() == 40);
    CHECK(area.Bottom() == 60);
}

TEST_CASE("an area contains its left and top edges, not what lies right of it or below") {
    const Rect area{10, 20, 30, 40};
    CHECK(area.Contains({10, 20}));
    CHECK(area.Contains({39, 59}));
    CHECK_FALSE(area.Contains({9, 20}));
    CHECK_FALSE(area.Contains({10, 19}));
    CHECK_FALSE(area.Contains({40, 59}));
    CHECK_FALSE(area.Contains({39, 60}));
    CHECK_FALSE(Rect{10, 20, 0, 0}.Contains({10, 20}));
}

TEST_CASE("an area is inset on all four sides, and grows by a negative amount") {
    CHECK(Rect{10, 20, 30, 40}.Inset(3) == Rect{13, 23, 24, 34});
    CHECK(Rect{10, 20, 30, 40}.Inset(-3) == Rect{7, 17, 36, 46});
}

TEST_CASE("a system colour is its index under the highest bit") {
    CHECK(SystemColour(0) == 0x80000000u);
    CHECK(SystemColour(15) == 0x8000000Fu);
}
