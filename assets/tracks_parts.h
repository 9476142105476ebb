// The words in which the tracks are written: rows of boxes, platforms, ramps and stars.
#pragma once

#include <cstdint>
#include <span>

namespace art::tracks {

/// What a box looks like and does.
enum class Look : uint8_t {
  // Driven on
  Plain,
  Stripes,
  Grass,
  Checker,
  Wood,
  Stone,
  Marble,
  Tiles,
  Metal,
  Neon,
  Hexagons,
  Sand,
  Brick,
  Concrete,
  Gold,
  Hazard,
  Lava,
  Leaves,
  // Kinds of their own
  Win,
  JumpPad,
  Ice,
  Falling,
  Turbo,
  Kill,
  Building,
  Tower,
};

/// Smallest corner; whole depths, as blocks and stars hold them.
struct Place {
  float x = 0, y = 0;
  int z = 0;
};
struct Size {
  float x = 1, y = 1, z = 1;
};

/// How a row goes on: `count` objects, each moved by the step; mirrored ones stand at -x as well.
struct Repeat {
  int count = 1;
  Place step = {};
  bool mirrored = false;
};

struct BoxRow {
  Look look = Look::Plain;
  Place at = {};
  Size size = {};
  Repeat repeat = {};
};

enum class Heading : uint8_t { Left = 2, Right = 3 };
/// Its speed is in hundredths of a unit per frame; one that does not loop jumps back to its start.
struct PlatformRow {
  Look look = Look::Concrete;
  Place at = {};
  Size size = {};
  uint8_t speed = 5;
  Heading heading = Heading::Right;
  uint8_t distance = 5;
  bool loops = true;
};

/// Where the slope rises to.
enum class Rises : uint8_t { Forward, Right, Back, Left };
struct RampRow {
  Look look = Look::Plain;
  Place at = {};  ///< whole numbers, as ramps hold them
  Size size = {};
  Rises rises = Rises::Forward;
  Repeat repeat = {};
};

struct StarRow {
  Place at = {};
  Repeat repeat = {};
};

struct Track {
  const char* file;
  const char* backdrop;
  bool lowGravity;
  std::span<const BoxRow> boxes;
  std::span<const PlatformRow> platforms;
  std::span<const RampRow> ramps;
  std::span<const StarRow> stars;
};

Track FirstSteps();
Track TwistAndHop();
Track FrozenAvenue();
Track SkylineShuttle();
Track EmberFields();
Track StarChaser();
Track NoWayAcross();
Track TheLongWayHome();

}  // namespace art::tracks
