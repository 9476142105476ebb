// Straight ahead: drive, then hop over ever wider gaps.
#include "assets/tracks_parts.h"

namespace art::tracks {
namespace {

using enum Look;

constexpr BoxRow kBoxes[] = {
    // The way
    {Checker, {-4, 0, 0}, {8, 1, 12}},
    {Stripes, {-2, 0, 12}, {4, 1, 4}, {.count = 6, .step = {0, 0, 4}}},
    {Stripes, {-2, 0, 39}, {4, 1, 4}, {.count = 6, .step = {0, 0, 4}}},
    {Grass, {-3, 0, 68}, {6, 1, 22}},
    {Checker, {-2, 0, 96}, {4, 1, 12}},
    {Checker, {-4, 0, 108}, {8, 1, 14}},
    {Win, {-2, 0, 122}, {4, 1, 4}},
    // Gate posts
    {Gold, {-4, 1, 10}, {1, 3, 1}, {.mirrored = true}},
    {Gold, {-4, 1, 119}, {1, 4, 1}, {.mirrored = true}},
    // Trees on floating islands
    {Grass, {-9, -0.5F, 6}, {4, 1, 6}, {.count = 5, .step = {0, 0, 24}, .mirrored = true}},
    {Wood,
     {-7.25F, 0.5F, 8},
     {0.5F, 1.5F, 0.5F},
     {.count = 5, .step = {0, 0, 24}, .mirrored = true}},
    {Leaves, {-8, 2, 7}, {2, 2, 2}, {.count = 5, .step = {0, 0, 24}, .mirrored = true}},
    // A village
    {Building, {-7, 0, 22}, {3, 3, 4}, {.count = 4, .step = {0, 0, 24}, .mirrored = true}},
};

constexpr StarRow kStars[] = {
    {{0, 1, 18}, {.count = 3, .step = {0, 0, 5}}},
    {{0, 3, 37}},
    {{0, 1, 48}, {.count = 2, .step = {0, 0, 6}}},
    {{-2, 1, 74}, {.count = 2, .step = {0, 0, 4}, .mirrored = true}},
    {{0, 3, 93}},
};

}  // namespace

Track FirstSteps() { return {"1 First Steps.lvl", "_default.jpg", false, kBoxes, {}, {}, kStars}; }

}  // namespace art::tracks
