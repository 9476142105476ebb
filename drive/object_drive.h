// Play mode without a window: the document's track, driven by keys, a row of numbers per frame.
#pragma once

#include <cstdint>
#include <string>

#include "drive/drive_row.h"
#include "drive/key_script.h"
#include "platform/clock.h"
#include "play/car.h"

namespace drive {

/// How the car's run came to its end in the game's update that has just been made; `wasExploding`
/// tells whether it exploded before.
Ending EndingNow(bool wasExploding);

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
  /// The same for who only wants to know whether it ended.
  Ending StepTo(CarKeys keys);

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
  Clock* clockBefore_ = nullptr;
  std::string track_;
};

/// Whether the script wins the document's track, driven through its objects.
bool WinsThroughObjects(const KeyScript& script);

}  // namespace drive
