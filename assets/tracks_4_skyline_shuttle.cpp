// Over the roofs: platforms to ride, jump pads to climb.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

// Platform tops lie lower than the road before them: a car that drives on would crash otherwise.
constexpr BoxRow kBoxes[] = {
    {Stripes, {-2, 0, 0}, {4, 1, 4}, {.count = 3, .step = {0, 0, 4}}},
    {Metal, {-3, 0, 12}, {6, 1, 8}},
    {Hazard, {-3, 0, 20}, {6, 1, 1}},
    // After the first platform: up to the roofs and down again
    {Metal, {2, -0.1F, 28}, {6, 1, 10}},
    {JumpPad, {3, -0.1F, 38}, {4, 1, 4}},
    {Building, {2, 0, 46}, {6, 4, 8}, {.count = 2, .step = {0, 0, 8}}},
    {Building, {0, 0, 66}, {6, 3, 7}, {.count = 2, .step = {0, 0, 7}}},
    {Building, {-4, 0, 90}, {6, 2, 10}},
    {Hazard, {-4, 1, 100}, {6, 1, 1}},
    // After the shuttle and after the last ride
    {Metal, {-8, 0.9F, 108}, {4, 1, 7}},
    {Hazard, {-8, 0.9F, 115}, {4, 1, 1}},
    {Metal, {-3, 0.8F, 124}, {6, 1, 10}},
    {JumpPad, {-2, 0.8F, 134}, {4, 1, 4}},
    {Building, {-4, 0, 142}, {8, 5, 6}, {.count = 2, .step = {0, 0, 6}}},
    {Building, {-4, 0, 154}, {8, 4, 4}},
    {Win, {-4, 4, 154}, {8, 1, 4}},
    {Gold, {-4, 5, 153}, {1, 2, 1}, {.mirrored = true}},
    // The city around
    {Building, {-8, -0.5F, 4}, {4, 3, 5}, {.mirrored = true}},
    {Tower, {-11, -0.9F, 14}, {4, 6, 4}, {.count = 2, .step = {0, 0, 134}, .mirrored = true}},
    {Building, {-8, -0.5F, 28}, {4, 3, 6}, {.count = 2, .step = {0, 1, 12}}},
    {Tower, {-10, -0.9F, 54}, {4, 7, 4}, {.count = 2, .step = {0, 1, 14}}},
    {Building, {-5, -0.5F, 58}, {3, 2, 4}},
    {Tower, {8, -0.9F, 72}, {3, 6, 4}, {.count = 3, .step = {0, 0, 16}}},
    {Building, {3.5F, -0.5F, 98}, {4, 3, 5}, {.count = 2, .step = {0.5F, 0.5F, 14}}},
    {Building, {-10, -0.5F, 128}, {4, 4, 6}, {.mirrored = true}},
};

constexpr PlatformRow kPlatforms[] = {
    {Concrete, {-2, -0.1F, 21}, {4, 1, 7}, 8, Heading::Right, 5, true},
    {Hazard, {-3, 0.9F, 101}, {4, 1, 7}, 5, Heading::Left, 5, false},
    {Concrete, {-8, 0.8F, 116}, {4, 1, 8}, 6, Heading::Right, 6, true},
};

constexpr StarRow kStars[] = {
    {{0, 1, 10}, {.count = 2, .step = {0, 0, 5}}},
    {{4, 1, 34}},
    {{4, 5, 51}},
    {{1, 3, 75}},
    {{-2, 2, 97}},
    {{-6, 2, 111}},
    {{0, 2, 129}},
    {{0, 5, 150}},
};

}  // namespace

Track SkylineShuttle() {
  return {"4 Skyline Shuttle.lvl", "_bk005.jpg", false, kBoxes, kPlatforms, {}, kStars};
}

}  // namespace art::tracks
