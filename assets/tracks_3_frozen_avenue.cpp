// Ice between kerbs, houses in the way, and turbo pads before the widest gaps.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    {Tiles, {-4, 0, 0}, {8, 1, 12}},
    // Two towers on the ice, to be passed on the right and on the left
    {Ice, {-4, 0, 12}, {8, 1, 48}},
    {Marble, {-5, 0, 12}, {1, 2, 48}, {.mirrored = true}},
    {Tower, {-4, 1, 22}, {4, 4, 4}},
    {Tower, {0, 1, 46}, {4, 4, 4}},
    {Tiles, {-4, 0, 60}, {8, 1, 6}},
    // Turbo over the wide gap
    {Tiles, {-2, 0, 66}, {4, 1, 2}},
    {Turbo, {-2, 0, 68}, {4, 1, 4}},
    {Tiles, {-2, 0, 72}, {4, 1, 14}},
    {Ice, {-4, 0, 104}, {8, 1, 30}},
    {Tiles, {-4, 0, 134}, {8, 1, 20}},
    // The avenue: houses left, right and in the middle
    {Ice, {-4, 0, 154}, {8, 1, 48}},
    {Marble, {-5, 0, 154}, {1, 2, 48}, {.mirrored = true}},
    {Building, {-4, 1, 164}, {2, 3, 4}, {.mirrored = true}},
    {Building, {-1, 1, 182}, {2, 3, 4}},
    {Tiles, {-4, 0, 202}, {8, 1, 10}},
    // Turbo up the ramp
    {Turbo, {-2, 0, 212}, {4, 1, 4}},
    {Marble, {-2, 0, 216}, {4, 1, 6}},
    {Tiles, {-5, 0, 242}, {10, 1, 28}},
    {Win, {-3, 0, 270}, {6, 1, 4}},
    {Gold, {-5, 1, 268}, {1, 4, 1}, {.mirrored = true}},
    // Towers and frozen ponds at the sides
    {Tower, {-10, -0.9F, 4}, {3, 5, 4}, {.count = 3, .step = {0, 1, 22}, .mirrored = true}},
    {Marble, {-10, -0.9F, 74}, {6, 0.9F, 22}, {.mirrored = true}},
    {Ice, {-9.5F, -0.9F, 75}, {5, 1, 20}, {.mirrored = true}},
    {Marble, {-7.25F, 0.1F, 84}, {0.5F, 3, 0.5F}, {.mirrored = true}},
    {Gold, {-7.5F, 3.1F, 84}, {1, 1, 1}, {.mirrored = true}},
    {Building, {-10, -0.5F, 110}, {4, 4, 5}, {.count = 2, .step = {0, 1, 20}, .mirrored = true}},
    {Tower, {-10, -0.9F, 156}, {3, 5, 4}, {.count = 4, .step = {0, 0.5F, 18}, .mirrored = true}},
};

constexpr RampRow kRamps[] = {
    {Hazard, {-2, 1, 216}, {4, 2, 6}, Rises::Forward},
};

constexpr StarRow kStars[] = {
    {{2, 1, 23}},  {{-2, 1, 47}}, {{0, 1, 74}, {.count = 2, .step = {0, 0, 4}}},
    {{0, 3, 95}},  {{0, 1, 165}}, {{2, 1, 183}, {.mirrored = true}},
    {{0, 1, 206}}, {{0, 1, 264}},
};

}  // namespace

Track FrozenAvenue() {
  return {"3 Frozen Avenue.lvl", "_bk002.jpg", false, kBoxes, {}, kRamps, kStars};
}

}  // namespace art::tracks
