// That the children of a box fill it and leave each other alone, on screens of several scales.
#include <doctest/doctest.h>

#include <algorithm>
#include <random>

#include "toolkit/layoutfixture.h"
#include "toolkit/tracks.h"

using namespace toolkit;

namespace {

constexpr unsigned Rounds = 500;

class Chance {
  public:
    explicit Chance(unsigned seed) : random_(seed) {}
    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  private:
    std::mt19937 random_;
};

// Rows, columns, grids, frames and controls of several kinds, under tabs at times.
class Tree {
  public:
    Tree(LayoutFixture& fixture, unsigned seed) : fixture_(fixture), chance_(seed) {}

    Box Make() {
        if (chance_.Below(3) > 0) return Nest(3);
        auto& tabs = Add<TabStrip>(std::vector<std::string>{"Eins", "Zwei"});
        return Pages(tabs, {Nest(2), Nest(2)});
    }

  private:
    template <typename T, typename... Arguments>
    T& Add(Arguments&&... arguments) {
        return fixture_.form.Add<T>("control" + std::to_string(++fixture_.made),
                                    std::forward<Arguments>(arguments)...);
    }

    Box Nest(int depth) {
        const int kind = depth == 0 ? 4 : chance_.Below(5);
        if (kind == 3) return Dressed(InFrame(Add<Frame>("Rahmen"), Nest(depth - 1)));
        if (kind == 4) return Dressed(SomeLeaf());
        std::vector<Box> children;
        for (int count = chance_.Below(5); count > 0; --count) children.push_back(Nest(depth - 1));
        if (kind == 0) return Dressed(Row(std::move(children)));
        if (kind == 1) return Dressed(Column(std::move(children)));
        return Dressed(Grid(1 + chance_.Below(3), std::move(children)));
    }

    Box SomeLeaf() {
        switch (chance_.Below(4)) {
            case 0:
                return Leaf(Add<CheckBox>("Auto-Login"));
            case 1:
                return Leaf(Add<TextBox>(TextBoxStyle{.multiLine = chance_.Below(2) == 0}));
            case 2:
                return Leaf(Add<Slider>(SliderRange{}, 0));
            default:
                return fixture_.Text(chance_.Below(15));
        }
    }

    Box Dressed(Box box) {
        // Often none, so that neighbours touch.
        box.gap = chance_.Below(2) * chance_.Below(9);
        box.margin = chance_.Below(3) / 2 * chance_.Below(5);
        box.stretch = chance_.Below(3);
        box.keepsSize = chance_.Below(4) == 0;
        if (chance_.Below(5) == 0) box.least = {chance_.Below(150), chance_.Below(60)};
        return box;
    }

    LayoutFixture& fixture_;
    Chance chance_;
};

bool Apart(const Rect& one, const Rect& other) {
    return one.Right() <= other.left || other.Right() <= one.left || one.Bottom() <= other.top ||
           other.Bottom() <= one.top;
}

bool Holds(const Placement& outer, const Rect& area) {
    const ControlKind kind = outer.control->Kind();
    const Rect& whole = outer.area;
    return (kind == ControlKind::Frame || kind == ControlKind::TabStrip) &&
           area.left >= whole.left && area.top >= whole.top && area.Right() <= whole.Right() &&
           area.Bottom() <= whole.Bottom();
}

// Controls on different pages are never seen together.
bool SeenTogether(const Placement& one, const Placement& other) {
    return one.page == other.page || one.page < 0 || other.page < 0;
}

// The first two controls that overlap, in words; empty when there are none.
std::string Overlap(const std::vector<Placement>& placements) {
    for (std::size_t i = 0; i < placements.size(); ++i) {
        for (std::size_t j = i + 1; j < placements.size(); ++j) {
            const Placement& one = placements[i];
            const Placement& other = placements[j];
            if (!SeenTogether(one, other) || Apart(one.area, other.area)) continue;
            if (!Holds(one, other.area)) return one.control->Name() + " " + other.control->Name();
        }
    }
    return "";
}

Tracks SomeTracks(Chance& chance) {
    Tracks tracks(static_cast<std::size_t>(1 + chance.Below(6)));
    for (auto& track : tracks) {
        track.length = chance.Below(200);
        track.floor = chance.Below(track.length + 1);
        track.stretch = chance.Below(4);
    }
    return tracks;
}

}  // namespace

TEST_CASE("given the size that it wants or more, a tree lets no two controls overlap") {
    for (int percent : {100, 125}) {
        std::size_t placed = 0;
        for (unsigned seed = 0; seed < Rounds; ++seed) {
            CAPTURE(percent);
            CAPTURE(seed);
            LayoutFixture fixture;
            fixture.text.percent = percent;
            const Box box = Tree(fixture, seed).Make();
            const Size wanted = fixture.SizeOf(box);
            for (int more : {0, 1, 250}) {
                const auto placements =
                    Arrange(box, {7, -5, wanted.width + more, wanted.height + more}, fixture.text);
                REQUIRE(placements.size() == fixture.form.Controls().size());
                REQUIRE(Overlap(placements) == "");
                placed += placements.size();
            }
        }
        CHECK(placed > 5 * Rounds);
    }
}

TEST_CASE_FIXTURE(LayoutFixture, "what stretches fills its row and its column to the last pixel") {
    const auto children = [this] {
        return std::vector<Box>{Stretch(Text(4), 2), Text(9), Stretch(Group(60, 60), 3)};
    };
    const Box row = Row(children());
    const Box column = Column(children());
    for (int length = 0; length < 500; ++length) {
        CAPTURE(length);
        const auto across = Areas(row, {0, 0, length, 60});
        const auto down = Areas(column, {0, 0, 60, length});
        // Two gaps stay, however small the area.
        REQUIRE(across.back().Right() == std::max(length, 8));
        REQUIRE(down.back().Bottom() == std::max(length, 8));
        for (std::size_t i = 1; i < across.size(); ++i) {
            REQUIRE(across[i].left == across[i - 1].Right() + 4);
            REQUIRE(down[i].top == down[i - 1].Bottom() + 4);
        }
    }
}

TEST_CASE_FIXTURE(LayoutFixture, "a column of a grid takes the largest stretch of its cells") {
    const Box grid = Gap(
        Grid(2, {Stretch(Text(10), 1), Stretch(Text(10), 1), Stretch(Text(10), 3), Text(10)}), 0);
    CHECK(Areas(grid, {0, 0, 160, 26}) ==
          std::vector<Rect>{{0, 0, 90, 13}, {90, 0, 70, 13}, {0, 13, 90, 13}, {90, 13, 70, 13}});
}

TEST_CASE_FIXTURE(LayoutFixture, "a least size counts the margin in") {
    CHECK(SizeOf(Margin(AtLeast(Text(1), 50, 40), 8)) == Size{50, 40});
}

TEST_CASE_FIXTURE(LayoutFixture, "an area too small for a frame leaves nothing to its content") {
    const Box box = InFrame(form.Add<Frame>("frame", "Rahmen"), Text(10));
    CHECK(Areas(box, {0, 0, 10, 10}) == std::vector<Rect>{{0, 0, 10, 10}, {8, 17, 0, 0}});
}

TEST_CASE_FIXTURE(LayoutFixture, "at 120 dots per inch all distances are a quarter larger") {
    text.percent = 125;
    // A character is 7 wide and 16 high then.
    CHECK(SizeOf(Gap(Row({Text(2), Text(3)}), 8)) == Size{14 + 10 + 21, 16});
    CHECK(SizeOf(Margin(Column({Text(2), Text(3)}), 8)) == Size{10 + 21 + 10, 57});
    CHECK(SizeOf(AtLeast(Text(1), 40, 20)) == Size{50, 25});
    CHECK(Areas(Margin(Gap(Row({Text(2), AtLeast(Stretch(Text(3)), 40, 0)}), 8), 8),
                {0, 0, 100, 36}) == std::vector<Rect>{{10, 10, 14, 16}, {34, 10, 56, 16}});
    CHECK(Areas(InFrame(form.Add<Frame>("frame", "Rahmen"), Text(2)), {0, 0, 100, 60}) ==
          std::vector<Rect>{{0, 0, 100, 60}, {10, 21, 80, 29}});
    auto& tabs = form.Add<TabStrip>("tabs", std::vector<std::string>{"Eins", "Zwei"});
    CHECK(Areas(Pages(tabs, {Text(2)}), {0, 0, 200, 100}) ==
          std::vector<Rect>{{0, 0, 200, 100}, {5, 33, 190, 62}});
}

TEST_CASE("tracks with room to spare fill it where one stretches, and none becomes shorter") {
    Chance chance(1);
    for (unsigned round = 0; round < Rounds; ++round) {
        CAPTURE(round);
        const Tracks before = SomeTracks(chance);
        const int total = TotalLength(before);
        const int available = total + chance.Below(500);
        Tracks tracks = before;
        Fit(tracks, available);
        bool anyStretches = false;
        for (std::size_t i = 0; i < tracks.size(); ++i) {
            const bool stretches = before[i].stretch > 0;
            anyStretches = anyStretches || stretches;
            REQUIRE(tracks[i].length >= before[i].length);
            REQUIRE((stretches || tracks[i].length == before[i].length));
        }
        REQUIRE(TotalLength(tracks) == (anyStretches ? available : total));
    }
}

TEST_CASE(
    "tracks that lack room use all there is and keep their floors, the stretching give first") {
    Chance chance(2);
    for (unsigned round = 0; round < Rounds; ++round) {
        CAPTURE(round);
        const Tracks before = SomeTracks(chance);
        const int available = chance.Below(TotalLength(before) + 1);
        Tracks tracks = before;
        Fit(tracks, available);
        int floors = 0;
        int stretchingKeep = 0;
        bool othersGave = false;
        for (std::size_t i = 0; i < tracks.size(); ++i) {
            REQUIRE(tracks[i].length >= before[i].floor);
            REQUIRE(tracks[i].length <= before[i].length);
            floors += before[i].floor;
            if (before[i].stretch > 0) stretchingKeep += tracks[i].length - before[i].floor;
            othersGave =
                othersGave || (before[i].stretch == 0 && tracks[i].length < before[i].length);
        }
        REQUIRE(TotalLength(tracks) == std::max(available, floors));
        REQUIRE((!othersGave || stretchingKeep == 0));
    }
}
