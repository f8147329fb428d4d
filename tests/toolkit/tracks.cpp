#include "toolkit/tracks.h"

#include <doctest/doctest.h>

using toolkit::Tracks;

namespace {

std::vector<int> Fitted(Tracks tracks, int available) {
    toolkit::Fit(tracks, available);
    std::vector<int> lengths;
    for (const toolkit::Track& track : tracks) lengths.push_back(track.length);
    return lengths;
}

using Lengths = std::vector<int>;

}  // namespace

TEST_CASE("tracks that fit exactly keep their lengths") {
    CHECK(Fitted({{10, 0, 1}, {20, 0, 0}}, 30) == Lengths{10, 20});
}

TEST_CASE("room left over goes to the tracks that stretch, by their shares") {
    CHECK(Fitted({{10, 0, 0}, {10, 0, 1}, {10, 0, 3}}, 70) == Lengths{10, 20, 40});
}

TEST_CASE("room left over stays unused where nothing stretches") {
    CHECK(Fitted({{10, 0, 0}, {10, 0, 0}}, 100) == Lengths{10, 10});
}

TEST_CASE("an uneven rest is given out to the last pixel") {
    const Lengths lengths = Fitted({{0, 0, 1}, {0, 0, 1}, {0, 0, 1}}, 100);
    CHECK(lengths == Lengths{33, 33, 34});
}

TEST_CASE("where room is lacking the tracks that stretch give way first") {
    CHECK(Fitted({{30, 0, 0}, {30, 0, 1}}, 40) == Lengths{30, 10});
    CHECK(Fitted({{30, 0, 0}, {20, 0, 1}, {40, 0, 2}}, 60) == Lengths{30, 10, 20});
}

TEST_CASE("when the tracks that stretch are used up the others give way, in proportion") {
    CHECK(Fitted({{30, 0, 0}, {60, 0, 0}, {30, 0, 1}}, 30) == Lengths{10, 20, 0});
}

TEST_CASE("no track gives way below its floor") {
    CHECK(Fitted({{30, 25, 1}, {30, 10, 0}}, 40) == Lengths{25, 15});
    CHECK(Fitted({{30, 25, 1}, {30, 10, 0}}, 0) == Lengths{25, 10});
}

TEST_CASE("no length is ever negative") {
    CHECK(Fitted({{30, 0, 1}, {30, 0, 0}}, 0) == Lengths{0, 0});
    CHECK(Fitted({{30, 0, 1}, {30, 0, 0}}, -50) == Lengths{0, 0});
    CHECK(Fitted({}, 10).empty());
}
