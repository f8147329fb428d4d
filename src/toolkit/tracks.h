#pragma once

#include <vector>

namespace toolkit {

// One child of a row or a column, one column or one row of a grid, along its direction.
struct Track {
    int length = 0;
    // What it keeps when there is too little room.
    int floor = 0;
    int stretch = 0;
};

using Tracks = std::vector<Track>;

int TotalLength(const Tracks& tracks);

// Room left over goes to the tracks that stretch. Where room is lacking these shrink first, then
// the others; below its floor none does, so that the last ones may stand out of the area.
void Fit(Tracks& tracks, int available);

}  // namespace toolkit
