// What one frame of a drive ended with, as a row of numbers.
#pragma once

#include <string>

#include "drive/drive_state.h"

namespace drive {

/// Taken after the platforms moved.
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

Row RowOf(const Car& car, int frame, bool onGround, int stars, Ending ending);
inline Row RowOf(const DriveState& state, const StepEvents& events) {
  return RowOf(state.car, state.frame, state.OnGround, static_cast<int>(state.collected.size()),
               events.ending);
}

}  // namespace drive
