#include "play/play_frame.h"

#include <algorithm>
#include <array>

#include "level/AnimatedTextures.h"
#include "level/globals.h"
#include "platform/error.h"
#include "play/CollisionDetection.h"
#include "play/DirectInput.h"
#include "play/PlayUpdate.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"

namespace play {
namespace {

constexpr std::array kJumpKeys = {scancode::kLeftShift, scancode::kLeftCtrl, scancode::kSpace,
                                  scancode::kRightShift, scancode::kRightCtrl};
constexpr int kFramesPerPicture = 3;

int framesShown = 0;  ///< of the present picture of animated textures

void AnimateBlocks() {
  if (++framesShown < kFramesPerPicture) return;
  framesShown = 0;
  AnimatedTextures::Pictures pictures;
  try {
    for (clsblock& block : Live(Document.Blocks, Document.BlockCount)) {
      block.UpdateAnimatedTexture(pictures);
    }
  } catch (const PlatformError&) {
    // A missing picture is no reason to stop the game.
  }
}

}  // namespace

void Start() {
  framesShown = 0;
  // Left from an earlier play: no jump in the air.
  CollisionDetection::OnGround = false;
  // Sparks of the last drive would pile up over many of them.
  Particles.resetParticles();
  Player.resetPLayer();
  DirectX::ResetCamera();
  DirectX::ApplyCamera();
}

CarKeys HeldCarKeys() {
  using DirectInput::Held;
  int keys = 0;
  const auto add = [&keys](bool held, CarKey key) {
    if (held) keys |= key;
  };
  add(Held(scancode::kLeft), kLeftKey);
  add(Held(scancode::kRight), kRightKey);
  add(Held(scancode::kUp), kUpKey);
  add(Held(scancode::kDown), kDownKey);
  add(std::ranges::any_of(kJumpKeys, Held), kJumpKey);
  return static_cast<CarKeys>(keys);
}

KeyboardState KeyboardWith(CarKeys keys) {
  KeyboardState state{};
  const auto press = [&](CarKey meaning, uint8_t code) {
    if ((keys & meaning) != 0) state[code] = kKeyHeld;
  };
  press(kLeftKey, scancode::kLeft);
  press(kRightKey, scancode::kRight);
  press(kUpKey, scancode::kUp);
  press(kDownKey, scancode::kDown);
  press(kJumpKey, scancode::kSpace);
  return state;
}

void PollCarKeys() { Player.Motion().Obey(HeldCarKeys(), CollisionDetection::OnGround); }

void Update(const RestoreTrack& restoreTrack) {
  if (Player.DeathStatus() && !ResetAfterDeath(restoreTrack)) return;
  PlayUpdate();
  AnimateBlocks();
}

bool ResetAfterDeath(const RestoreTrack& restoreTrack) {
  Player.resetPLayer();
  DirectX::ResetCamera();
  Particles.resetParticles();
  const bool restored = restoreTrack();
  DirectX::ApplyCamera();
  return restored;
}

}  // namespace play
