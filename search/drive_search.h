// Finds keys that win a track. The answer depends on nothing but the track and the limits, so that
// it is the same on every machine.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include "drive/frozen_track.h"
#include "drive/key_script.h"

namespace search {

struct Limits {
  int64_t steps = 60'000'000;  ///< of the car, in all rounds together
  int32_t states = 1'000'000;  ///< kept at a time
  int32_t frames = 20'000;     ///< of the drive that is looked for
};

struct Effort {
  int64_t steps = 0, states = 0;
};

/// How the watcher of a search is told and asked; each may be left out.
struct Watch {
  const std::atomic<bool>* stop = nullptr;
  std::function<void(const Effort&)> progress = {};
};

enum class Outcome : uint8_t { Won, NotFound, NoWayToWin, NoWinBlock, Stopped };

struct Result {
  Outcome outcome = Outcome::NotFound;
  drive::KeyScript script;  ///< of a win
  Effort effort;
};

Result FindDrive(const drive::FrozenTrack& track, const Limits& limits = {},
                 const Watch& watch = {});

/// The answer in words, such as "Can be won: 11.4 s".
std::string WordsFor(const Result& result);

}  // namespace search
