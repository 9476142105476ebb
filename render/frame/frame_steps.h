// One frame in its order, for the window and for scripts without one.
#pragma once

#include <functional>

#include "play/play_frame.h"
#include "render/frame/RenderFrame.h"

/// What differs between those who run frames.
struct FrameSteps {
  std::function<void()> poll;       ///< reads the keys, acts on those held and applies the camera
  play::RestoreTrack restoreTrack;  ///< in play mode, after a run has ended
  std::function<void()> updated;    ///< in play mode, after the game's update; may be empty
  FrameAdditions additions = {};
};

/// Keys, in play mode the game's update, the picture, which moves the car, then the platforms.
void RunFrame(const FrameSteps& steps);

/// Advances every moving platform by one step.
void MovePlatforms();
