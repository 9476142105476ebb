// Steering: lanes that shift, a hop to another lane, ramps over a hill and up banks at the sides.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    // Left, right, and a hop to the middle
    {Wood, {-3, 0, 0}, {6, 1, 14}},
    {Wood, {-6, 0, 14}, {5, 1, 14}},
    {Stone, {-6, 0, 28}, {12, 1, 10}},
    {Wood, {1, 0, 38}, {5, 1, 12}},
    {Wood, {-3, 0, 56}, {6, 1, 14}},
    // The hill
    {Stone, {-3, 0, 70}, {6, 1, 6}},
    {Grass, {-3, 0, 76}, {6, 3, 14}},
    {Stone, {-3, 0, 90}, {6, 1, 8}},
    // The middle lane and the decks at its sides
    {Wood, {-2, 0, 98}, {4, 1, 26}},
    {Grass, {-8, 0, 102}, {4, 2, 44}},
    {Wood, {-2, 0, 130}, {4, 1, 48}},
    {Grass, {4, 0, 154}, {4, 2, 42}},
    {Stone, {2, 0, 202}, {6, 1, 14}},
    {Win, {3, 0, 216}, {4, 1, 4}},
    // Posts at the turns and the finish
    {Stone, {-6, 1, 28}, {1, 2, 1}, {.mirrored = true}},
    {Stone, {-6, 1, 37}, {1, 2, 1}, {.mirrored = true}},
    {Gold, {2, 1, 215}, {1, 4, 1}},
    {Gold, {7, 1, 215}, {1, 4, 1}},
    // A forest on both sides
    {Grass, {-11, -0.5F, 40}, {4, 1, 42}, {.mirrored = true}},
    {Wood, {-9.25F, 0.5F, 42}, {0.5F, 2, 0.5F}, {.count = 5, .step = {0, 0, 9}, .mirrored = true}},
    {Leaves, {-10, 2, 41}, {2, 2, 2}, {.count = 5, .step = {0, 0, 9}, .mirrored = true}},
    {Grass, {5, -0.5F, 100}, {5, 1, 32}},
    {Wood, {7.25F, 0.5F, 103}, {0.5F, 2, 0.5F}, {.count = 4, .step = {0, 0, 8}}},
    {Leaves, {6.5F, 2, 102}, {2, 2, 2}, {.count = 4, .step = {0, 0, 8}}},
    {Grass, {-10, -0.5F, 152}, {5, 1, 44}},
    {Wood, {-7.75F, 0.5F, 155}, {0.5F, 2, 0.5F}, {.count = 5, .step = {0, 0, 8}}},
    {Leaves, {-8.5F, 2, 154}, {2, 2, 2}, {.count = 5, .step = {0, 0, 8}}},
};

constexpr RampRow kRamps[] = {
    {Stone, {-3, 1, 70}, {6, 2, 6}, Rises::Forward}, {Stone, {-3, 1, 90}, {6, 2, 8}, Rises::Back},
    {Stone, {-4, 1, 102}, {2, 1, 18}, Rises::Left},  {Stone, {-4, 1, 130}, {2, 1, 16}, Rises::Left},
    {Stone, {2, 1, 154}, {2, 1, 26}, Rises::Right},
};

constexpr StarRow kStars[] = {
    {{-2, 1, 19}, {.count = 2, .step = {0, 0, 4}}},
    {{0, 1, 34}},
    {{2, 1, 40}, {.count = 2, .step = {0, 0, 4}}},
    {{0, 1, 65}},
    {{0, 3, 88}},
    {{-5, 2, 123}, {.count = 2, .step = {0, 0, 5}}},
    {{5, 2, 182}, {.count = 2, .step = {0, 0, 4}}},
    {{5, 1, 210}},
};

}  // namespace

Track TwistAndHop() {
  return {"2 Twist and Hop.lvl", "_bk003.jpg", false, kBoxes, {}, kRamps, kStars};
}

}  // namespace art::tracks
