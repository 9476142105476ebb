#include "drive/resume.h"

#include "level/globals.h"
#include "play/CollisionDetection.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"

namespace drive {
namespace {

void ResumeCar(const DriveState& state) {
  Car& car = Player.Motion();
  const int32_t tick = car.LastFrameTick;  // of this clock
  car = state.car;
  car.LastFrameTick = tick;
  CollisionDetection::OnGround = state.OnGround;
}

/// The camera has gone as far as the car.
void ResumeCamera(const DriveState& state) {
  DirectX::ResetCamera();
  const double way = double{state.car.position.z} - Car::kStart.z;
  DirectX::CameraPosition.z = ToSingle(DirectX::CameraPosition.z + way);
  DirectX::CameraTarget.z = ToSingle(DirectX::CameraTarget.z + way);
  DirectX::ApplyCamera();
}

}  // namespace

void Resume(const FrozenTrack& track, const DriveState& state) {
  ResumeCar(state);
  ResumeCamera(state);
  // Only a step puts the planes of platforms where they are.
  if (state.framesOfRun == 0) return;
  const auto platforms = Live(Document.Platforms, Document.PlatformCount);
  for (size_t i = 0; i < platforms.size(); ++i) {
    platforms[i].Resume(track.Platforms()[i].way.At(static_cast<size_t>(state.platformSteps)));
  }
  const auto blocks = Live(Document.Blocks, Document.BlockCount);
  for (const MovedBlock& moved : state.moved) {
    blocks[static_cast<size_t>(moved.index)].Resume(moved.y, moved.motion);
  }
  const auto stars = Live(Document.Stars, Document.StarCount);
  for (const int32_t star : state.collected) stars[static_cast<size_t>(star)].GetStar();
}

}  // namespace drive
