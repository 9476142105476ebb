#include "bench/driving.h"

#include "bench/scenes.h"
#include "level/globals.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "play/play_frame.h"
#include "render/device/DirectX.h"
#include "render/frame/frame_steps.h"

namespace bench {

Driving::Driving() {
  Document.EditorMode = PlayMode;
  Document.PlatformsPaused = false;
  play::Start();
  DirectInput::KeyState[scancode::kUp] = kKeyHeld;
}

Driving::~Driving() {
  DirectInput::KeyState = {};
  Document.EditorMode = EditMode;
}

void Driving::PlaceCar() {
  constexpr float kHeight = 30;
  play::Start();
  Player.PosY(kHeight);
  Player.Posz(kSceneDepth);
}

void Driving::Step() {
  play::PollCarKeys();
  play::Update([] { return true; });
  // Being drawn moves the car.
  Device& device = *DirectX::D3DDevice;
  device.BeginScene();
  Player.draw();
  device.EndScene();
  device.Present();
  MovePlatforms();
}

}  // namespace bench
