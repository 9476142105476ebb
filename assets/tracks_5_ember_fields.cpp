// Blocks that fall away, crosses and lava that kill, walls to pass and to clear.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    {Brick, {-3, 0, 0}, {6, 1, 16}},
    // Hop, hop, hop
    {Falling, {-2, 0, 24}, {4, 1, 8}, {.count = 3, .step = {0, 0, 17}}},
    {Sand, {-4, 0, 74}, {8, 1, 16}},
    // Crosses left, right and right across
    {Kill, {-4, 0, 90}, {4, 1, 4}},
    {Sand, {0, 0, 90}, {4, 1, 4}},
    {Sand, {-4, 0, 94}, {8, 1, 20}},
    {Kill, {0, 0, 114}, {4, 1, 4}},
    {Sand, {-4, 0, 114}, {4, 1, 4}},
    {Sand, {-4, 0, 118}, {8, 1, 16}},
    {Kill, {-4, 0, 134}, {8, 1, 4}},
    // Walls: round the first two, over the third
    {Brick, {-4, 0, 138}, {8, 1, 66}},
    {Stone, {-4, 1, 154}, {4, 3, 1}},
    {Stone, {0, 1, 176}, {4, 3, 1}},
    {Hazard, {-4, 1, 196}, {8, 1, 1}},
    // Down over the last falling bridge
    {Brick, {-3, 0, 210}, {6, 3, 10}},
    {Falling, {-2, 2, 220}, {4, 1, 6}},
    {Marble, {-4, 0, 226}, {8, 1, 22}},
    {Kill, {-4, 1, 240}, {2, 2, 2}, {.mirrored = true}},
    {Win, {-3, 0, 248}, {6, 1, 4}},
    {Gold, {-4, 1, 247}, {1, 4, 1}, {.mirrored = true}},
    // Lava below and torches beside
    {Lava, {-6, -0.9F, 17}, {12, 0.4F, 56}},
    {Stone, {-7, -0.9F, 16}, {1, 1.5F, 58}, {.mirrored = true}},
    {Brick, {-7, 0.6F, 24}, {1, 2, 1}, {.count = 4, .step = {0, 0, 14}, .mirrored = true}},
    {Lava,
     {-6.75F, 2.6F, 24},
     {0.5F, 0.5F, 0.5F},
     {.count = 4, .step = {0, 0, 14}, .mirrored = true}},
    {Lava, {-9, -0.9F, 80}, {4, 0.6F, 52}, {.mirrored = true}},
    {Stone, {-9, -0.3F, 84}, {3, 3, 3}, {.count = 3, .step = {0, 1, 18}, .mirrored = true}},
    {Brick, {-6, 0, 140}, {2, 3, 2}, {.count = 5, .step = {0, 0, 14}, .mirrored = true}},
    {Lava, {-5.5F, 3, 140}, {1, 0.6F, 1}, {.count = 5, .step = {0, 0, 14}, .mirrored = true}},
    {Lava, {-8, -0.9F, 206}, {16, 0.4F, 19}},
    {Stone, {-8, -0.9F, 225}, {3, 5, 3}, {.count = 2, .step = {0, 1, 18}, .mirrored = true}},
};

constexpr RampRow kRamps[] = {
    {Stone, {-3, 1, 204}, {6, 2, 6}, Rises::Forward},
};

constexpr StarRow kStars[] = {
    {{0, 3, 20}, {.count = 3, .step = {0, 0, 17}}},
    {{2, 1, 91}},
    {{-2, 1, 115}},
    {{0, 3, 136}},
    {{2, 1, 154}},
    {{-2, 1, 176}},
    {{0, 3, 197}},
    {{0, 1, 236}, {.count = 2, .step = {0, 0, 4}}},
};

}  // namespace

Track EmberFields() {
  return {"5 Ember Fields.lvl", "_bk001.jpg", false, kBoxes, {}, kRamps, kStars};
}

}  // namespace art::tracks
