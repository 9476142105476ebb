// The play part of a frame, shared by the editor's window and headless tools. A frame of play mode
// is, in this order: the keyboard state is read, PollCarKeys, ApplyCamera; Update; RenderFrame,
// which moves the car; the moving platforms' step.
#pragma once

#include <functional>

#include "platform/keyboard.h"
#include "play/car.h"

namespace play {

/// Puts the track back as it was when play began; false when it could not and play has ended.
using RestoreTrack = std::function<bool()>;

/// Enters play mode: car and camera at their start, no sparks.
void Start();
/// What the driver holds, in DirectInput::KeyState.
CarKeys HeldCarKeys();
/// The keyboard of somebody who holds these.
KeyboardState KeyboardWith(CarKeys keys);
/// Sets the car's velocities from the held keys.
void PollCarKeys();
/// Starts over after a finished run, then runs the game for one frame.
void Update(const RestoreTrack& restoreTrack);
/// Car, camera, particles and track as at the start; false when play has ended.
bool ResetAfterDeath(const RestoreTrack& restoreTrack);

}  // namespace play
