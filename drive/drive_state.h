// Everything that a drive has changed so far, in a form that is copied in no time.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "level/block_motion.h"
#include "play/car.h"

namespace drive {

/// A block that is not where it stands in the track.
struct MovedBlock {
  int32_t index;
  float y;
  BlockMotion motion;
};

struct DriveState {
  DriveState() { car.Reset(); }

  Car car;
  bool OnGround = false;  ///< a jump is possible
  bool platformsStand = false;
  int32_t frame = 0;          ///< so many were run
  int32_t framesOfRun = 0;    ///< since the track was last as it is without a drive
  int32_t platformSteps = 0;  ///< of this run
  std::vector<MovedBlock> moved;
  std::vector<int32_t> collected;  ///< stars of this run
};

enum class Ending : uint8_t { None, Wins, Explodes, Falls };

/// What one frame brought.
struct StepEvents {
  Ending ending = Ending::None;  ///< in the frame of it
  bool jumpPad = false, turboPad = false;
};

/// As rows of a table name it.
constexpr const char* NameOf(Ending ending) {
  switch (ending) {
    case Ending::Wins:
      return "win";
    case Ending::Explodes:
      return "explode";
    case Ending::Falls:
      return "fall";
    case Ending::None:
      break;
  }
  return "";
}

/// The ending of this name.
constexpr Ending EndingNamed(std::string_view name) {
  for (const Ending ending : {Ending::Wins, Ending::Explodes, Ending::Falls}) {
    if (name == NameOf(ending)) return ending;
  }
  return Ending::None;
}

}  // namespace drive
