// Looks as if nobody could win it: a gap as wide as a jump, a field of crosses with one lane, a
// wall as high as a jump pad throws, and a goal behind a platform that hardly ever comes by.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    // All the run-up that there is, then 17 units of nothing
    {Marble, {-3, 0, 0}, {6, 1, 40}},
    {Gold, {-3, 1, 38}, {1, 3, 1}, {.mirrored = true}},
    {Marble, {-3, 0, 57}, {6, 1, 20}},
    // The one lane between the crosses
    {Kill, {-5, 0, 77}, {4, 1, 12}},
    {Tiles, {-1, 0, 77}, {2, 1, 12}},
    {Kill, {1, 0, 77}, {4, 1, 12}},
    {Marble, {-3, 0, 89}, {6, 1, 12}},
    {Kill, {-5, 0, 101}, {7, 1, 8}},
    {Tiles, {2, 0, 101}, {1, 1, 8}},
    {Marble, {-3, 0, 109}, {8, 1, 16}},
    // A wall with a way over it
    {JumpPad, {-1, 0, 125}, {2, 1, 2}},
    {Stone, {-6, -0.5F, 130}, {12, 4.5F, 4}},
    {Marble, {-3, 3, 134}, {6, 1, 14}},
    // Steps that fall, the last of them aside
    {Falling, {-1, 3, 156}, {2, 1, 3}},
    {Falling, {-3, 3, 166}, {2, 1, 3}},
    {Falling, {1, 3, 176}, {2, 1, 3}},
    {Marble, {-3, 2, 187}, {6, 1, 18}},
    // The goal, as far away as the start was
    {Gold, {-3, 3, 204}, {1, 3, 1}, {.mirrored = true}},
    {Win, {-2, 2, 236}, {4, 1, 4}},
    // Ruins of those who tried
    {Stone, {-12, -0.5F, 42}, {3, 2, 3}, {.count = 5, .step = {0, 0.5F, 34}, .mirrored = true}},
    {Brick, {-11.5F, 1.5F, 43}, {2, 2, 1}, {.count = 5, .step = {0, 0.5F, 34}, .mirrored = true}},
};

constexpr PlatformRow kPlatforms[] = {
    {Gold, {-10, 2, 218}, {3, 1, 4}, 10, Heading::Right, 17, true},
};

constexpr StarRow kStars[] = {
    {{0, 3, 48}}, {{0, 1, 82}}, {{2, 1, 105}}, {{0, 5, 131}}, {{0, 4, 140}}, {{0, 3, 196}},
};

}  // namespace

Track NoWayAcross() {
  return {"7 No Way Across.lvl", "_bk002.jpg", false, kBoxes, kPlatforms, {}, kStars};
}

}  // namespace art::tracks
