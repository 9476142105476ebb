#include <algorithm>
#include <cmath>

#include "check/rules.h"
#include "drive/words.h"

namespace check {
namespace {

constexpr int kFrames = 1500;

/// Whether a platform may ever be near the start.
bool PlatformsComeBy(const drive::FrozenTrack& track) {
  constexpr double kNear = 2.5;
  return std::ranges::any_of(track.Platforms(), [](const drive::FrozenPlatform& platform) {
    const Extent& box = platform.box;
    const double way = platform.way.Travel().distance + kNear;
    return box.corner.x - way < 0 && box.corner.x + box.size.x + way > 0 &&
           box.corner.z - kNear < 1 && box.corner.z + box.size.z + kNear > 1;
  });
}

class IdleRun {
 public:
  explicit IdleRun(const drive::FrozenTrack& track)
      : track_(track), nothingComes_(!PlatformsComeBy(track)) {}

  void Run() {
    while (state_.frame < kFrames && ending_ == drive::Ending::None && !rests_) Step();
  }
  float Ground() const { return ground_; }
  void Report(Findings& findings) const;

 private:
  void Step();
  bool IsCarried() const;

  const drive::FrozenTrack& track_;
  const bool nothingComes_;
  drive::DriveState state_;
  drive::Ending ending_ = drive::Ending::None;
  float ground_ = Car::kStart.y;
  bool landed_ = false, moved_ = false, rests_ = false;
  int framePushed_ = 0;
  Vector3 placePushed_;
};

void IdleRun::Step() {
  const Car before = state_.car;
  const drive::StepEvents events = track_.Step(state_, 0);
  const Car& car = state_.car;
  ending_ = events.ending;
  if (!landed_ && (state_.OnGround || events.jumpPad)) {
    landed_ = true;
    ground_ = car.position.y;
  }
  if (!moved_ && (car.position.x != Car::kStart.x || car.position.z != Car::kStart.z)) {
    moved_ = true;
    if (!IsCarried()) {
      framePushed_ = state_.frame;
      placePushed_ = car.position;
    }
  }
  rests_ = nothingComes_ && state_.OnGround && state_.moved.empty() && !car.Exploding &&
           before.position == car.position && before.velocity == car.velocity;
}

/// A platform takes along what stands on it.
bool IdleRun::IsCarried() const {
  constexpr float kNear = 0.01F;
  drive::FrozenTrack::Near near;
  track_.FindNear(state_, near);
  return std::ranges::any_of(near.platforms, [this](int32_t index) {
    const Extent& box = track_.Platforms()[static_cast<size_t>(index)].box;
    return std::abs(state_.car.position.y - box.corner.y - box.size.y) < kNear;
  });
}

void IdleRun::Report(Findings& findings) const {
  std::string text = "With no key touched the car ";
  std::string end;
  if (ending_ == drive::Ending::Falls) end = "falls after " + drive::Seconds(state_.frame);
  if (ending_ == drive::Ending::Explodes) end = "explodes after " + drive::Seconds(state_.frame);
  if (framePushed_ > 0) {
    text.append("is pushed after ").append(drive::Seconds(framePushed_));
    if (!end.empty()) text.append(" and ").append(end);
    findings.Add(Fault::CarIsPushed, placePushed_, text);
  } else if (!end.empty()) {
    findings.Add(ending_ == drive::Ending::Falls ? Fault::CarFalls : Fault::CarExplodes,
                 state_.car.position, text + end);
  }
}

}  // namespace

float CheckIdleCar(const drive::FrozenTrack& track, Findings& findings) {
  IdleRun run(track);
  run.Run();
  run.Report(findings);
  return run.Ground();
}

}  // namespace check
