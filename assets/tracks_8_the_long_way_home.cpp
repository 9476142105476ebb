// More than a minute on the way, with everything there is.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    // Out of the village, over the ditch and the hill
    {Sand, {-3, 0, 0}, {6, 1, 44}},
    {Sand, {-3, 0, 54}, {6, 1, 30}},
    {Grass, {-3, 0, 84}, {6, 1, 8}},
    {Grass, {-3, 2, 92}, {6, 1, 30}},
    {Grass, {-3, 0, 122}, {6, 1, 8}},
    {Sand, {-3, 0, 130}, {6, 1, 34}},
    // Behind the ferry the frozen lake
    {Concrete, {-4, 0, 180}, {8, 1, 22}},
    {Ice, {-4, 0, 202}, {8, 1, 24}},
    {Concrete, {-4, 0, 226}, {8, 1, 24}},
    {Kill, {-4, 0, 250}, {4, 1, 4}},
    {Concrete, {0, 0, 250}, {4, 1, 4}},
    {Concrete, {-4, 0, 254}, {8, 1, 20}},
    {Kill, {0, 0, 274}, {4, 1, 4}},
    {Concrete, {-4, 0, 274}, {4, 1, 4}},
    {Concrete, {-4, 0, 278}, {8, 1, 22}},
    // The rotten bridge, and up to the roofs
    {Falling, {-2, 0, 302}, {4, 1, 4}, {.count = 5, .step = {0, 0, 6}}},
    {Concrete, {-4, 0, 332}, {8, 1, 28}},
    {JumpPad, {-2, 0, 360}, {4, 1, 4}},
    {Building, {-4, -0.5F, 369}, {8, 4, 10}, {.count = 4, .step = {0, 0, 18}}},
    {Concrete, {-4, 0, 444}, {8, 1, 28}},
    // Lanes that shift
    {Wood, {-6, 0, 472}, {4, 1, 26}},
    {Wood, {-1, 0, 494}, {4, 1, 26}},
    {Wood, {3, 0, 516}, {4, 1, 26}},
    {Wood, {-1, 0, 538}, {4, 1, 26}},
    {Stone, {-4, 0, 564}, {8, 1, 20}},
    // Along the bank to the upper deck
    {Stone, {-4, 0, 584}, {6, 1, 30}},
    {Grass, {4, 0, 588}, {4, 2, 44}},
    {Stone, {2, 0, 636}, {8, 1, 26}},
    // Two ferries, then walls with doors
    {Concrete, {0, 0, 694}, {12, 1, 22}},
    {Brick, {0, 1, 708}, {8, 4, 1}},
    {Concrete, {0, 0, 716}, {12, 1, 24}},
    {Brick, {4, 1, 730}, {8, 4, 1}},
    {Concrete, {0, 0, 740}, {12, 1, 30}},
    // Up and down again
    {Stone, {2, 1, 770}, {6, 1, 20}},
    {Stone, {2, 2, 790}, {6, 1, 20}},
    {Stone, {2, 3, 810}, {6, 1, 20}},
    {Stone, {2, 1, 834}, {6, 1, 30}},
    {Falling, {3, 1, 866}, {4, 1, 4}, {.count = 3, .step = {0, 0, 6}}},
    {Stone, {2, 1, 884}, {6, 1, 36}},
    // Home in one leap
    {Turbo, {3, 1, 920}, {4, 1, 6}},
    {Gold, {3, 1, 926}, {4, 1, 10}},
    {Sand, {1, 0, 964}, {8, 1, 24}},
    {Win, {2, 0, 988}, {6, 1, 6}},
    {Gold, {1, 1, 986}, {1, 4, 1}},
    {Gold, {8, 1, 986}, {1, 4, 1}},
    // What stands beside the way
    {Grass, {-11, -0.5F, 20}, {5, 1, 60}, {.mirrored = true}},
    {Wood, {-9.25F, 0.5F, 24}, {0.5F, 2, 0.5F}, {.count = 5, .step = {0, 0, 12}, .mirrored = true}},
    {Leaves, {-10, 2.25F, 23}, {2, 2, 2}, {.count = 5, .step = {0, 0, 12}, .mirrored = true}},
    {Tower, {-12, -0.9F, 190}, {4, 6, 4}, {.count = 6, .step = {0, 0.5F, 24}, .mirrored = true}},
    {Grass, {-12, -0.5F, 480}, {4, 1, 80}},
    {Wood, {-10.25F, 0.5F, 484}, {0.5F, 2, 0.5F}, {.count = 6, .step = {0, 0, 13}}},
    {Leaves, {-11, 2.25F, 483}, {2, 2, 2}, {.count = 6, .step = {0, 0, 13}}},
    {Tower, {-8, -0.9F, 690}, {4, 5, 4}, {.count = 5, .step = {0, 0.5F, 20}}},
};

constexpr PlatformRow kPlatforms[] = {
    {Metal, {-5, 0, 167}, {6, 1, 8}, 5, Heading::Right, 4, true},
    {Metal, {1, 0, 665}, {5, 1, 9}, 6, Heading::Right, 5, true},
    {Metal, {6, 0, 680}, {5, 1, 9}, 6, Heading::Left, 5, true},
    {Gold, {12, -0.5F, 950}, {3, 1, 3}, 8, Heading::Left, 9, false},
};

constexpr RampRow kRamps[] = {
    {Grass, {-3, 1, 84}, {6, 2, 8}, Rises::Forward}, {Grass, {-3, 1, 122}, {6, 2, 8}, Rises::Back},
    {Grass, {2, 1, 588}, {2, 1, 26}, Rises::Right},  {Stone, {4, 1, 632}, {4, 1, 4}, Rises::Back},
    {Gold, {3, 2, 930}, {4, 2, 6}, Rises::Forward},
};

constexpr StarRow kStars[] = {
    {{0, 1, 30}, {.count = 3, .step = {0, 0, 14}}},
    {{0, 3, 104}, {.count = 2, .step = {0, 0, 8}}},
    {{0, 1, 150}},
    {{0, 1, 214}},
    {{2, 1, 252}},
    {{-2, 1, 276}},
    {{0, 1, 316}},
    {{0, 4, 373}, {.count = 4, .step = {0, 0, 18}}},
    {{-4, 1, 484}},
    {{5, 1, 528}},
    {{6, 2, 610}},
    {{10, 1, 708}},
    {{2, 1, 730}},
    {{5, 4, 820}},
    {{5, 2, 900}},
    {{5, 1, 976}},
};

}  // namespace

Track TheLongWayHome() {
  return {"8 The Long Way Home.lvl", "_bk005.jpg", false, kBoxes, kPlatforms, kRamps, kStars};
}

}  // namespace art::tracks
