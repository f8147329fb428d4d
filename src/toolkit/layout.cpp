#include "toolkit/layout.h"

#include <algorithm>
#include <unordered_map>

#include "toolkit/controls.h"
#include "toolkit/naturalsize.h"
#include "toolkit/tracks.h"

namespace toolkit {
namespace {

// Pixels at 96 dots per inch.
constexpr int FrameEdge = 8;
constexpr int FrameCaptionGap = 4;
constexpr int PageEdge = 4;

// What a frame or a tab strip keeps for itself around its content.
struct Edges {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

Edges EdgesOf(const Box& box, const TextMeasure& measure) {
    if (box.kind == BoxKind::Frame) {
        const int edge = measure.Scale(FrameEdge);
        return {edge, LineHeight(measure) + measure.Scale(FrameCaptionGap), edge, edge};
    }
    if (box.kind == BoxKind::Tabs) {
        const int edge = measure.Scale(PageEdge);
        return {edge, NaturalSize(*box.control, measure).height + edge, edge, edge};
    }
    return {};
}

Rect Without(Rect area, Edges edges) {
    return {area.left + edges.left, area.top + edges.top,
            std::max(0, area.width - edges.left - edges.right),
            std::max(0, area.height - edges.top - edges.bottom)};
}

Size Larger(Size one, Size other) {
    return {std::max(one.width, other.width), std::max(one.height, other.height)};
}

Size Within(Size size, Size most) {
    if (most.width > 0) size.width = std::min(size.width, most.width);
    if (most.height > 0) size.height = std::min(size.height, most.height);
    return size;
}

enum class Direction { Across, Down };

using Sizes = std::vector<Size>;

Track TrackOf(const Box& box, Size size, Direction direction, const TextMeasure& measure) {
    if (direction == Direction::Across) {
        return {size.width, measure.Scale(box.least.width), box.stretch};
    }
    return {size.height, measure.Scale(box.least.height), box.stretch};
}

// `sizes` are those of the children.
Tracks TracksOf(const Box& box, const Sizes& sizes, Direction direction,
                const TextMeasure& measure) {
    Tracks tracks;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        tracks.push_back(TrackOf(box.children[i], sizes[i], direction, measure));
    }
    return tracks;
}

void Widen(Track& track, const Track& cell) {
    track.length = std::max(track.length, cell.length);
    track.floor = std::max(track.floor, cell.floor);
    track.stretch = std::max(track.stretch, cell.stretch);
}

struct GridTracks {
    Tracks columns;
    Tracks rows;
};

GridTracks TracksOfGrid(const Box& box, const Sizes& sizes, const TextMeasure& measure) {
    const auto columns = static_cast<std::size_t>(std::max(1, box.columns));
    GridTracks tracks{Tracks(columns), Tracks((sizes.size() + columns - 1) / columns)};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const Box& cell = box.children[i];
        Widen(tracks.columns[i % columns], TrackOf(cell, sizes[i], Direction::Across, measure));
        Widen(tracks.rows[i / columns], TrackOf(cell, sizes[i], Direction::Down, measure));
    }
    // A stretch inside a grid is one of columns; its rows stay as high as their cells.
    for (Track& row : tracks.rows) row.stretch = 0;
    return tracks;
}

int Gaps(const Tracks& tracks, const Box& box, const TextMeasure& measure) {
    return tracks.empty() ? 0 : measure.Scale(box.gap) * static_cast<int>(tracks.size() - 1);
}

int LengthWithGaps(const Tracks& tracks, const Box& box, const TextMeasure& measure) {
    return TotalLength(tracks) + Gaps(tracks, box, measure);
}

// Measures each box once. A box is asked for by everything around it, and the text of a whole page
// is dear to measure.
class Sizer {
  public:
    explicit Sizer(const TextMeasure& measure) : measure_(measure) {}

    Size SizeOf(const Box& box) {
        const auto known = known_.find(&box);
        return known != known_.end() ? known->second : known_[&box] = Measured(box);
    }

    Sizes SizesOfChildren(const Box& box) {
        Sizes sizes;
        for (const Box& child : box.children) sizes.push_back(SizeOf(child));
        return sizes;
    }

  private:
    Size Measured(const Box& box) {
        const Edges edges = EdgesOf(box, measure_);
        Size size = ContentSize(box);
        size.width += edges.left + edges.right;
        size.height += edges.top + edges.bottom;
        const bool hasCaption = box.kind == BoxKind::Frame || box.kind == BoxKind::Tabs;
        if (hasCaption) size = Larger(size, NaturalSize(*box.control, measure_));
        const int margins = 2 * measure_.Scale(box.margin);
        size = Within({size.width + margins, size.height + margins}, Scaled(box.most));
        return Larger(size, Scaled(box.least));
    }

    Size Scaled(Size size) const {
        return {measure_.Scale(size.width), measure_.Scale(size.height)};
    }

    Size ContentSize(const Box& box) {
        if (box.kind == BoxKind::Leaf) return NaturalSize(*box.control, measure_);
        const Sizes sizes = SizesOfChildren(box);
        if (box.kind == BoxKind::Grid) {
            const GridTracks tracks = TracksOfGrid(box, sizes, measure_);
            return {LengthWithGaps(tracks.columns, box, measure_),
                    LengthWithGaps(tracks.rows, box, measure_)};
        }
        Size size;
        for (Size child : sizes) size = Larger(size, child);
        if (box.kind == BoxKind::Row) {
            const Tracks tracks = TracksOf(box, sizes, Direction::Across, measure_);
            size.width = LengthWithGaps(tracks, box, measure_);
        }
        if (box.kind == BoxKind::Column) {
            const Tracks tracks = TracksOf(box, sizes, Direction::Down, measure_);
            size.height = LengthWithGaps(tracks, box, measure_);
        }
        return size;
    }

    const TextMeasure& measure_;
    std::unordered_map<const Box*, Size> known_;
};

// A control that looks wrong when it is drawn higher than its text or mark is.
bool HasOneHeight(const Box& box) {
    if (box.kind != BoxKind::Leaf) return false;
    const ControlKind kind = box.control->Kind();
    if (kind == ControlKind::ListView || kind == ControlKind::ListBox) return false;
    const auto* textBox = dynamic_cast<const TextBox*>(box.control);
    return !textBox || !textBox->Style().multiLine;
}

// The part of its cell's width that the box takes: all, or its own from the left on.
Rect FitAcross(const Box& box, Size size, Rect cell) {
    if (box.keepsSize) cell.width = std::min(cell.width, size.width);
    return cell;
}

// The part of its cell's height that the box takes: all, or its own, which a control has in the
// middle and a group of controls on top.
Rect FitDown(const Box& box, Size size, Rect cell) {
    if (!box.keepsSize && !HasOneHeight(box)) return cell;
    const int height = std::min(cell.height, size.height);
    if (box.kind == BoxKind::Leaf) cell.top += (cell.height - height) / 2;
    cell.height = height;
    return cell;
}

class Arranger {
  public:
    explicit Arranger(const TextMeasure& measure) : measure_(measure), sizer_(measure) {}

    void Place(const Box& box, Rect area, int page) {
        const int margin = measure_.Scale(box.margin);
        area = Without(area, {margin, margin, margin, margin});
        if (box.control) placements_.push_back({box.control, area, page});
        const Rect content = Without(area, EdgesOf(box, measure_));
        switch (box.kind) {
            case BoxKind::Row:
                PlaceRow(box, content, page);
                break;
            case BoxKind::Column:
                PlaceColumn(box, content, page);
                break;
            case BoxKind::Grid:
                PlaceGrid(box, content, page);
                break;
            case BoxKind::Frame:
                for (const Box& child : box.children) Place(child, content, page);
                break;
            case BoxKind::Tabs:
                for (std::size_t i = 0; i < box.children.size(); ++i) {
                    Place(box.children[i], content, static_cast<int>(i));
                }
                break;
            case BoxKind::Leaf:
            case BoxKind::Space:
                break;
        }
    }

    std::vector<Placement> Take() { return std::move(placements_); }

  private:
    void PlaceRow(const Box& box, Rect area, int page) {
        const Sizes sizes = sizer_.SizesOfChildren(box);
        Tracks tracks = TracksOf(box, sizes, Direction::Across, measure_);
        Fit(tracks, area.width - Gaps(tracks, box, measure_));
        Rect cell = area;
        for (std::size_t i = 0; i < tracks.size(); ++i) {
            cell.width = tracks[i].length;
            Place(box.children[i], FitDown(box.children[i], sizes[i], cell), page);
            cell.left += cell.width + measure_.Scale(box.gap);
        }
    }

    void PlaceColumn(const Box& box, Rect area, int page) {
        const Sizes sizes = sizer_.SizesOfChildren(box);
        Tracks tracks = TracksOf(box, sizes, Direction::Down, measure_);
        Fit(tracks, area.height - Gaps(tracks, box, measure_));
        Rect cell = area;
        for (std::size_t i = 0; i < tracks.size(); ++i) {
            cell.height = tracks[i].length;
            Place(box.children[i], FitAcross(box.children[i], sizes[i], cell), page);
            cell.top += cell.height + measure_.Scale(box.gap);
        }
    }

    void PlaceGrid(const Box& box, Rect area, int page) {
        const Sizes sizes = sizer_.SizesOfChildren(box);
        GridTracks tracks = TracksOfGrid(box, sizes, measure_);
        Fit(tracks.columns, area.width - Gaps(tracks.columns, box, measure_));
        Fit(tracks.rows, area.height - Gaps(tracks.rows, box, measure_));
        const std::size_t columns = tracks.columns.size();
        Rect cell = area;
        for (std::size_t i = 0; i < box.children.size(); ++i) {
            if (i > 0 && i % columns == 0) {
                cell.left = area.left;
                cell.top += cell.height + measure_.Scale(box.gap);
            }
            cell.width = tracks.columns[i % columns].length;
            cell.height = tracks.rows[i / columns].length;
            const Box& child = box.children[i];
            Place(child, FitDown(child, sizes[i], FitAcross(child, sizes[i], cell)), page);
            cell.left += cell.width + measure_.Scale(box.gap);
        }
    }

    const TextMeasure& measure_;
    Sizer sizer_;
    std::vector<Placement> placements_;
};

}  // namespace

Size Measure(const Box& box, const TextMeasure& measure) {
    return Sizer(measure).SizeOf(box);
}

std::vector<Placement> Arrange(const Box& box, Rect area, const TextMeasure& measure) {
    Arranger arranger(measure);
    arranger.Place(box, area, -1);
    return arranger.Take();
}

}  // namespace toolkit
