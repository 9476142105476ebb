// Low gravity: long flights over everything the other tracks have taught.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    {Hexagons, {-3, 0, 0}, {6, 1, 18}},
    // A long hop, then off the ramp
    {Hexagons, {-3, 0, 36}, {6, 1, 24}},
    {Neon, {-2, 0, 60}, {4, 1, 6}},
    {Hexagons, {-5, 0, 82}, {10, 1, 14}},
    {Kill, {-5, 0, 96}, {3, 1, 4}, {.mirrored = true}},
    {Hexagons, {-2, 0, 96}, {4, 1, 4}},
    {Hexagons, {-5, 0, 100}, {10, 1, 4}},
    // From the platform by turbo over the ice and out
    {Neon, {2, -0.1F, 114}, {6, 1, 8}},
    {Turbo, {3, -0.1F, 122}, {4, 1, 4}},
    {Ice, {3, -0.1F, 126}, {4, 1, 16}},
    {Hexagons, {1, 0, 182}, {8, 1, 34}},
    // Over the falling bridge to the jump pad and onto the roofs
    {Falling, {3, 0, 216}, {4, 1, 6}},
    {Neon, {2, -0.9F, 222}, {6, 1, 24}},
    {JumpPad, {3, -0.9F, 246}, {4, 1, 4}},
    {Building, {1, 0, 264}, {8, 5, 8}, {.count = 4, .step = {0, 0, 8}}},
    {Building, {1, 0, 296}, {8, 4, 4}},
    {Win, {1, 4, 296}, {8, 1, 4}},
    {Gold, {1, 5, 295}, {1, 3, 1}, {.count = 2, .step = {7, 0, 0}}},
    // Gates and islands in space
    {Neon, {-3, 1, 14}, {1, 4, 1}, {.mirrored = true}},
    {Gold, {-3, 5, 14}, {1, 1, 1}, {.mirrored = true}},
    {Hexagons,
     {-9, -0.9F, 22},
     {4, 0.5F, 4},
     {.count = 4, .step = {0, 0.5F, 12}, .mirrored = true}},
    {Neon, {-8, -0.4F, 23}, {2, 2, 2}, {.count = 4, .step = {0, 0.5F, 12}, .mirrored = true}},
    {Neon, {-5, 1, 82}, {1, 3, 1}, {.mirrored = true}},
    {Gold, {-5, 4, 82}, {1, 1, 1}, {.mirrored = true}},
    {Neon, {-9, -0.9F, 92}, {3, 3, 3}, {.count = 3, .step = {0, 1, 14}}},
    {Hexagons, {-6, -0.9F, 134}, {5, 0.5F, 5}, {.count = 5, .step = {0, 0.5F, 16}}},
    {Neon, {-4.5F, -0.4F, 135}, {2, 3, 2}, {.count = 5, .step = {0, 0.5F, 16}}},
    {Gold, {-4, 2.6F, 135}, {1, 1, 1}, {.count = 5, .step = {0, 0.5F, 16}}},
    {Tower, {-5, -0.9F, 218}, {4, 5, 4}, {.count = 5, .step = {0, 1, 17}}},
};

constexpr PlatformRow kPlatforms[] = {
    {Neon, {-3, -0.1F, 104}, {5, 1, 10}, 6, Heading::Right, 6, true},
    {Neon, {-8, 0.5F, 159}, {3, 1, 3}, 9, Heading::Right, 16, true},
    {Gold, {-8, 0.5F, 242}, {2, 1, 2}, 6, Heading::Right, 7, false},
};

constexpr RampRow kRamps[] = {
    {Gold, {-2, 1, 60}, {4, 2, 6}, Rises::Forward},
};

constexpr StarRow kStars[] = {
    {{0, 5, 26}},
    {{0, 1, 48}, {.count = 2, .step = {0, 0, 6}}},
    {{0, 5, 76}},
    {{0, 1, 97}},
    {{5, 1, 117}},
    {{5, 5, 160}, {.count = 2, .step = {0, 0, 8}}},
    {{5, 1, 202}, {.count = 2, .step = {0, 0, 6}}},
    {{5, 0, 236}},
    {{5, 8, 268}},
    {{5, 5, 290}},
};

}  // namespace

Track StarChaser() {
  return {"6 Star Chaser.lvl", "_bk004.jpg", true, kBoxes, kPlatforms, kRamps, kStars};
}

}  // namespace art::tracks
