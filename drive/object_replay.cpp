#include "drive/object_replay.h"

#include <stdexcept>
#include <utility>

#include "files/FileIO.h"
#include "play/CollisionDetection.h"
#include "play/DirectInput.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"

namespace drive {

/// While it lives, the replay's track and car are the program's.
class ObjectReplay::Inside {
 public:
  explicit Inside(ObjectReplay& replay) : replay_(replay) { replay_.Exchange(); }
  ~Inside() {
    replay_.Exchange();
    DirectX::ApplyCamera();
  }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  ObjectReplay& replay_;
};

void ObjectReplay::Exchange() {
  std::swap(Document, document_);
  std::swap(DirectX::D3DDevice, device_);
  std::swap(Player, player_);
  std::swap(Particles, particles_);
  std::swap(FileIO::TrackReplaced, trackReplaced_);
  std::swap(DirectX::CameraPosition, cameraPosition_);
  std::swap(DirectX::CameraTarget, cameraTarget_);
  std::swap(CollisionDetection::OnGround, onGround_);
  std::swap(DirectInput::KeyState, keyState_);
  Clock* const clock = ticks::InUse();
  ticks::Use(clock_);
  clock_ = clock;
}

ObjectReplay::ObjectReplay(KeyScript script)
    : script_(std::move(script)),
      keys_(script_),
      device_(std::make_unique<Device>(nullptr)),
      player_(Player) {
  std::string track;
  FileIO::Result result = FileIO::LevelBytes(track);
  document_.TextureDir = Document.TextureDir;
  document_.BackgroundDir = Document.BackgroundDir;
  const Inside inside(*this);
  if (result.Ok()) result = FileIO::ReadLevelBytes(track, "the track");
  if (!result.Ok()) throw std::runtime_error(result.message);
  drive_ = std::make_unique<ObjectDrive>();
}

ObjectReplay::~ObjectReplay() {
  const Inside inside(*this);
  drive_.reset();
}

std::optional<Ending> ObjectReplay::Advance(int frames) {
  const Inside inside(*this);
  for (; frames > 0; --frames) {
    if (keys_.AtEnd()) return Ending::None;
    const Ending ending = drive_->StepTo(keys_.Next());
    if (ending != Ending::None) return ending;
  }
  return std::nullopt;
}

}  // namespace drive
