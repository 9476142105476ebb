// How a block falls and bounces, frame by frame.
#pragma once

#include "platform/numbers.h"

struct BlockMotion {
  bool Falling = false;
  bool Bouncing = false;
  float BouncePhase = 0;
  float BounceBase = 0;
  float fallvel = 0;  ///< downward displacement of the last frame

  bool Moves() const { return Falling || Bouncing; }
  /// 22 frames up by 1 and back, from the height y.
  void Bounce(float y) {
    Bouncing = true;
    BouncePhase = -1.0F;
    BounceBase = y;
  }
  /// The height after a frame, for the height before it.
  float Advance(float y, float gravity) {
    if (Falling) y = AdvanceFall(y, gravity);
    if (Bouncing) y = AdvanceBounce(y);
    return y;
  }

 private:
  float AdvanceFall(float y, float gravity) {
    fallvel = ToSingle(double{fallvel} + gravity);
    return ToSingle(double{y} - fallvel);
  }
  float AdvanceBounce(float y) {
    float next = ToSingle(double{BounceBase} + 1 - double{BouncePhase} * BouncePhase);
    fallvel = ToSingle(double{y} - next);
    if (BouncePhase >= 1.1F) {
      Bouncing = false;
      next = BounceBase;
      fallvel = 0;
    }
    BouncePhase = ToSingle(BouncePhase + 0.1);
    return next;
  }
};
