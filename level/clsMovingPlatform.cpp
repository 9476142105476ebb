#include "level/clsMovingPlatform.h"

#include <algorithm>

#include "platform/numbers.h"

const BoxObject::Kind clsMovingPlatform::kKind = {
    {box::kSideColour, box::kSideColour}, {box::kTopColour, box::kTopColour}, false};

void clsMovingPlatform::create(float CoordX, float CoordY, float CoordZ) {
  StartGeometry();
  Move({CoordX, CoordY, CoordZ});
  Moving_ = true;
}

void clsMovingPlatform::Set(float Vector3::*coordinate, float value) {
  Vector3 place = Position();
  place.*coordinate = StartPos_.*coordinate = InitialPos_.*coordinate = value;
  Place(place);
}

void clsMovingPlatform::Xpos(float NewVal) { Set(&Vector3::x, NewVal); }

void clsMovingPlatform::Ypos(float NewVal) {
  if (NewVal > -1.0) Set(&Vector3::y, NewVal);
}

void clsMovingPlatform::Zpos(float NewVal) {
  if (NewVal > -1.0) Set(&Vector3::z, NewVal);
}

void clsMovingPlatform::Texture(const std::string& Name, const std::string& face,
                                const std::string& TextureDir) {
  LoadTexture(Name, face, TextureDir);
}

void clsMovingPlatform::DrawAt(float x) {
  Vector3 place = Position();
  place.x = x;
  DrawBoxAt(place);
}

Extent clsMovingPlatform::Reach() const {
  constexpr double kFarthest = 255;
  const auto [least, most] = std::minmax(Position().x, InitialPos_.x);
  Extent reach = Drawn();
  reach.corner.x = ToSingle(least - kFarthest);
  reach.size.x = ToSingle(double{most} - least + 2 * kFarthest + reach.size.x);
  return reach;
}

int clsMovingPlatform::Heading() const { return Mdir_ == Left ? -1 : Mdir_ == Right ? 1 : 0; }

clsMovingPlatform::Step clsMovingPlatform::NextStep() const {
  const int heading = Heading();
  const double length = heading * (Mspeed_ / 100.0);
  const float limit = ToSingle(double{StartPos_.x} + heading * Mdist_);
  const float next = ToSingle(Position().x + length);
  return {length, next, ToSingle(RoundTo3(limit)), heading < 0 ? next >= limit : next <= limit};
}

void clsMovingPlatform::move() {
  ChangedDir_ = false;
  Vector3 place = Position();
  if (Moving_ && Heading() != 0) {
    const Step step = NextStep();
    if (step.inside) {
      place.x = ToSingle(RoundTo3(step.next));
    } else if (MloopBack()) {
      ChangedDir_ = true;
      place.x = StartPos_.x = step.limit;
      Mdir_ = Mdir_ == Left ? Right : Left;
    } else {
      place.x = StartPos_.x;
    }
  }
  Move(place);
}

Vector3 clsMovingPlatform::GetVelocity() const {
  if (Heading() == 0) return {};
  const Step step = NextStep();
  if (step.inside) return {ToSingle(step.length), 0, 0};
  // The rest of the way to the end; a jump back to the start carries nobody.
  return MloopBack() ? Vector3{ToSingle(double{step.limit} - Position().x), 0, 0} : Vector3{};
}

void clsMovingPlatform::StartAnimation() {
  InitialPos_ = StartPos_;
  SavedDir_ = Mdir_;
}

void clsMovingPlatform::StopAnimation() {
  StartPos_ = InitialPos_;
  Place(StartPos_);
  Mdir_ = SavedDir_;
  RefreshVertexBuffer();
}

void clsMovingPlatform::ResetToOrigin() {
  if (Mdir_ != 1) Place(InitialPos_);
}

void clsMovingPlatform::RestartLeg() {
  StartPos_ = InitialPos_;
  Mdir_ = InitialDir_;
}
