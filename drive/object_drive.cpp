#include "drive/object_drive.h"

#include <algorithm>
#include <array>
#include <cstdio>
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

/// How the run ended or came to its end in this update.
const char* EventOf(bool wasExploding) {
  // Nothing but a fall or a win has set it before the car is drawn.
  if (Player.DeathStatus()) return Player.PosY() < -40 ? "fall" : "win";
  return Player.getexplodeStatus() && !wasExploding ? "explode" : "";
}

int CollectedStars() {
  const auto stars = Live(Document.Stars, Document.StarCount);
  return static_cast<int>(
      std::ranges::count_if(stars, [](const clsStar& star) { return !star.visible(); }));
}

Row RowNow(int frame, const char* event) {
  const Vector4 velocity = Player.GetVelocity();
  return {frame,
          Player.Posx(),
          Player.PosY(),
          Player.Posz(),
          velocity.x,
          velocity.y,
          velocity.z,
          CollisionDetection::OnGround,
          Player.ISPlayerOnAnIceBlock(),
          Player.getexplodeStatus(),
          Player.DeathStatus(),
          CollectedStars(),
          event};
}

}  // namespace

std::string RowLine(const Row& row) {
  std::array<char, 256> line{};
  std::snprintf(line.data(), line.size(), "%d,%.9g,%.9g,%.9g,%.9g,%.9g,%.9g,%d,%d,%d,%d,%d,%s",
                row.frame, double{row.x}, double{row.y}, double{row.z}, double{row.hv},
                double{row.vv}, double{row.fv}, row.onGround, row.onIce, row.exploding, row.dead,
                row.stars, row.event);
  return line.data();
}

ObjectDrive::ObjectDrive() {
  // As in the editor, play starts from the track exactly as a file read produces it.
  Check(FileIO::LevelBytes(track_));
  RestoreTrack();
  ticks::Use(&clock_);
  Document.EditorMode = PlayMode;
  Document.PlatformsPaused = false;
  play::Start();
}

ObjectDrive::~ObjectDrive() {
  Document.EditorMode = EditMode;
  DirectInput::KeyState = {};
  ticks::Use(nullptr);
}

void ObjectDrive::RestoreTrack() const {
  Check(FileIO::ReadLevelBytes(track_, "the track in memory"));
}

Row ObjectDrive::Step(CarKeys keys) {
  ++clock_.frame;
  // A finished run is reset before the game goes on.
  const bool wasExploding = Player.getexplodeStatus() && !Player.DeathStatus();
  const char* event = "";
  RunFrame({[keys] {
              DirectInput::KeyState = play::KeyboardWith(keys);
              play::PollCarKeys();
              DirectX::ApplyCamera();
            },
            [this] {
              RestoreTrack();
              return true;
            },
            [&] { event = EventOf(wasExploding); }});
  return RowNow(clock_.frame, event);
}

}  // namespace drive
