// The car on the document's track, without pictures.
#pragma once

namespace bench {

/// Play mode while it lives.
class Driving {
 public:
  /// Frames of one run: a multiple of those that an animated texture stays, and few enough for the
  /// car to get no faster than it may hit a wall.
  static constexpr int kFrames = 18;

  Driving();
  ~Driving();
  Driving(const Driving&) = delete;
  Driving& operator=(const Driving&) = delete;

  /// Puts the car, at rest, over the middle of the corridor.
  static void PlaceCar();
  /// A play step with a key held: the game's update, the car's own move, the platforms'.
  static void Step();
};

}  // namespace bench
