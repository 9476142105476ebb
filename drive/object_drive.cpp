#include "drive/object_drive.h"

#include <algorithm>
#include <stdexcept>

#include "files/FileIO.h"
#include "level/globals.h"
#include "play/CollisionDetection.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/frame/frame_steps.h"

namespace drive {
namespace {

void Check(const FileIO::Result& result) {
  if (!result.Ok()) throw std::runtime_error(result.message);
}

int CollectedStars() {
  const auto stars = Live(Document.Stars, Document.StarCount);
  return static_cast<int>(
      std::ranges::count_if(stars, [](const clsStar& star) { return !star.visible(); }));
}

}  // namespace

Ending EndingNow(bool wasExploding) {
  // Nothing but a fall or a win has set it before the car is drawn.
  if (Player.DeathStatus()) {
    return Player.Motion().FellOffTheTrack() ? Ending::Falls : Ending::Wins;
  }
  return Player.getexplodeStatus() && !wasExploding ? Ending::Explodes : Ending::None;
}

ObjectDrive::ObjectDrive() {
  // As in the editor, play starts from the track exactly as a file read produces it.
  Check(FileIO::LevelBytes(track_));
  RestoreTrack();
  clockBefore_ = ticks::InUse();
  ticks::Use(&clock_);
  Document.EditorMode = PlayMode;
  Document.PlatformsPaused = false;
  play::Start();
  Player.Motion().LastFrameTick = 0;  // this clock begins anew
}

ObjectDrive::~ObjectDrive() {
  Document.EditorMode = EditMode;
  DirectInput::KeyState = {};
  ticks::Use(clockBefore_);
}

void ObjectDrive::RestoreTrack() const {
  Check(FileIO::ReadLevelBytes(track_, "the track in memory"));
}

Ending ObjectDrive::StepTo(CarKeys keys) {
  ++clock_.frame;
  // A finished run is reset before the game goes on.
  const bool wasExploding = Player.getexplodeStatus() && !Player.DeathStatus();
  Ending ending = Ending::None;
  RunFrame({[keys] {
              DirectInput::KeyState = play::KeyboardWith(keys);
              play::PollCarKeys();
              DirectX::ApplyCamera();
            },
            [this] {
              RestoreTrack();
              return true;
            },
            [&] { ending = EndingNow(wasExploding); }});
  return ending;
}

Row ObjectDrive::Step(CarKeys keys) {
  const Ending ending = StepTo(keys);
  return RowOf(Player.Motion(), clock_.frame, CollisionDetection::OnGround, CollectedStars(),
               ending);
}

bool WinsThroughObjects(const KeyScript& script) {
  ObjectDrive drive;
  for (KeyReader keys(script); !keys.AtEnd();) {
    const Ending ending = drive.StepTo(keys.Next());
    if (ending != Ending::None) return ending == Ending::Wins;
  }
  return false;
}

}  // namespace drive
