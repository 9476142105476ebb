// A moving platform's places, step after step. They depend on nothing but the number of the step.
#pragma once

#include <cstddef>
#include <vector>

#include "level/platform_motion.h"

namespace drive {

class PlatformWay {
 public:
  PlatformWay(const PlatformTravel& travel, const PlatformLeg& start)
      : travel_(travel), legs_{start} {}

  /// After so many steps, from 0. Places are worked out when they are first asked for.
  const PlatformLeg& At(size_t step) {
    while (step >= legs_.size() && period_ == 0) Extend();
    if (step < legs_.size()) return legs_[step];
    const size_t first = legs_.size() - period_;
    return legs_[first + (step - first) % period_];
  }
  const PlatformTravel& Travel() const { return travel_; }

 private:
  /// Adds a step, or finds that from here on places come again.
  void Extend() {
    PlatformLeg leg = legs_.back();
    const bool turned = leg.Advance(travel_);
    // A way repeats itself from a start, from the last turn into the same direction, or at rest.
    for (const size_t earlier : {size_t{0}, turnBeforeLast_, legs_.size() - 1}) {
      if (legs_[earlier] != leg) continue;
      period_ = legs_.size() - earlier;
      return;
    }
    if (turned) {
      turnBeforeLast_ = lastTurn_;
      lastTurn_ = legs_.size();
    }
    legs_.push_back(leg);
  }

  PlatformTravel travel_;
  std::vector<PlatformLeg> legs_;
  size_t period_ = 0;  ///< of the last legs; 0: not known
  size_t lastTurn_ = 0, turnBeforeLast_ = 0;
};

}  // namespace drive
