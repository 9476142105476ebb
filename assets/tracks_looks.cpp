#include "assets/tracks_looks.h"

#include <array>
#include <cstddef>

namespace art::tracks {
namespace {

/// Kind codes of blocks.
enum Kind : uint8_t {
  Normal = 0,
  WinLevel = 1,
  Jump = 2,
  Icy = 3,
  Falls = 4,
  Boost = 5,
  Deadly = 6,
  House = 10
};

constexpr BoxLook All(const char* texture, uint8_t stretchTop = 0, uint8_t kind = Normal) {
  return {texture, texture, texture, stretchTop, 0, kind};
}
constexpr BoxLook Topped(const char* top, const char* side, uint8_t stretchTop = 0) {
  return {side, side, top, stretchTop, 0, Normal};
}

/// In the order of Look.
constexpr std::array kLooks = {
    All("_default.bmp"),
    Topped("road stripes.bmp", "concrete.bmp", 1),
    Topped("grass.bmp", "stone wall.bmp"),
    Topped("green checker.bmp", "wood planks.bmp"),
    All("wood planks.bmp"),
    All("stone wall.bmp"),
    All("marble.bmp"),
    Topped("white tiles.bmp", "marble.bmp"),
    All("metal plate.bmp"),
    All("neon grid.bmp"),
    Topped("purple hexagons.bmp", "neon grid.bmp"),
    Topped("sand.bmp", "stone wall.bmp"),
    All("brick.bmp"),
    All("concrete.bmp"),
    All("gold plate.bmp"),
    All("hazard stripes.bmp"),
    All("lava.bmp", 0, Deadly),
    All("green checker.bmp"),
    All("_WIN.bmp", 1, WinLevel),
    All("Blue With Yellow Dot.bmp", 1, Jump),
    All("Ice2.bmp", 0, Icy),
    All("red.bmp", 0, Falls),
    BoxLook{"buildingTop.bmp", "buildingTop.bmp", "AnimationTest_0.bmp", 1, 0, Boost},
    All("Red Cross on Grey.bmp", 0, Deadly),
    BoxLook{"buildingFront.bmp", "building Side.bmp", "buildingTop.bmp", 1, 1, House},
    BoxLook{"building Side.bmp", "building Side.bmp", "buildingTop.bmp", 1, 2, House},
};
static_assert(kLooks.size() == static_cast<size_t>(Look::Tower) + 1);

}  // namespace

const BoxLook& StyleOf(Look look) { return kLooks[static_cast<size_t>(look)]; }

}  // namespace art::tracks
