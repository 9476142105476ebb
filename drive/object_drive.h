// Play mode without a window: the document's track, driven by keys, a row of numbers per frame.
#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"
#include "play/car.h"

namespace drive {

/// What one frame ended with, after the platforms moved.
struct Row {
  int frame = 0;  ///< from 1
  float x = 0, y = 0, z = 0;
  float hv = 0, vv = 0, fv = 0;
  bool onGround = false, onIce = false, exploding = false, dead = false;
  int stars = 0;           ///< collected so far
  const char* event = "";  ///< "win", "explode" or "fall" in the frame of it
};

inline constexpr const char* kRowHeader =
    "frame,x,y,z,hv,vv,fv,on_ground,on_ice,exploding,dead,stars,event";
/// The row as a line of the table, without line end.
std::string RowLine(const Row& row);

/// Enters play mode with the track in the document, on a started device, and leaves it when it goes
/// out of scope. A frame takes 40 ms of its own clock.
class ObjectDrive {
 public:
  /// Throws std::runtime_error when the track cannot be entered.
  ObjectDrive();
  ~ObjectDrive();
  ObjectDrive(const ObjectDrive&) = delete;
  ObjectDrive& operator=(const ObjectDrive&) = delete;

  /// Runs one frame; after a dead row it starts over.
  Row Step(CarKeys keys);

 private:
  class FrameClock : public Clock {
   public:
    int frame = 0;
    int64_t Counter() override { return int64_t{frame} * 40; }
    int64_t Frequency() override { return 1000; }
    int32_t TickCount() override { return static_cast<int32_t>(Counter()); }
  };

  void RestoreTrack() const;

  FrameClock clock_;
  std::string track_;
};

}  // namespace drive
