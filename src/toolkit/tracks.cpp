#include "toolkit/tracks.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace toolkit {
namespace {

// Adds `amount` to the tracks in proportion to their weights, to the last pixel; nothing where no
// track has weight. A negative amount takes away.
template <typename Weight>
void Spread(Tracks& tracks, int amount, Weight weight) {
    std::int64_t whole = 0;
    for (const Track& track : tracks) whole += weight(track);
    if (whole == 0) return;
    std::int64_t seen = 0;
    std::int64_t given = 0;
    for (Track& track : tracks) {
        seen += weight(track);
        const std::int64_t due = amount * seen / whole;
        track.length += static_cast<int>(due - given);
        given = due;
    }
}

// Takes up to `lack` away from the tracks that are picked, and returns what is still lacking.
template <typename Picked>
int Shrink(Tracks& tracks, int lack, Picked picked) {
    const auto spare = [&](const Track& track) {
        return picked(track) ? std::max(0, track.length - track.floor) : 0;
    };
    int most = 0;
    for (const Track& track : tracks) most += spare(track);
    const int taken = std::min(lack, most);
    Spread(tracks, -taken, spare);
    return lack - taken;
}

}  // namespace

int TotalLength(const Tracks& tracks) {
    return std::accumulate(tracks.begin(), tracks.end(), 0,
                           [](int sum, const Track& track) { return sum + track.length; });
}

void Fit(Tracks& tracks, int available) {
    const int left = available - TotalLength(tracks);
    if (left >= 0) {
        Spread(tracks, left, [](const Track& track) { return track.stretch; });
        return;
    }
    const int lack = Shrink(tracks, -left, [](const Track& track) { return track.stretch > 0; });
    Shrink(tracks, lack, [](const Track& track) { return track.stretch == 0; });
}

}  // namespace toolkit
