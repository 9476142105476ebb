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

constexpr float kJump = 0.35F;
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

void PollCarKeys() {
  using DirectInput::Held;
  const KeyboardState& keys = DirectInput::KeyState;
  const bool steering = keys[scancode::kRight] != 0 || keys[scancode::kLeft] != 0;
  if (!steering && !Player.ISPlayerOnAnIceBlock()) Player.HorizontalVelocity(0);
  if (Held(scancode::kUp)) Player.accelerate();
  if (Held(scancode::kDown)) Player.deccelerate();
  if (Held(scancode::kLeft)) Player.Moveleft();
  if (Held(scancode::kRight)) Player.MoveRight();
  const bool jump = std::ranges::any_of(kJumpKeys, Held);
  if (jump && CollisionDetection::OnGround && !Player.getexplodeStatus()) {
    Player.verticalvelocity(kJump);
  }
}

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
