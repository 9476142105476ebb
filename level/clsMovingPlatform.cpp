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

void clsMovingPlatform::move() {
  PlatformLeg leg = Leg();
  ChangedDir_ = Moving_ && leg.Advance(Travel());
  Resume(leg);
}

void clsMovingPlatform::Resume(const PlatformLeg& leg) {
  StartPos_.x = leg.startX;
  Mdir_ = leg.direction;
  Move({leg.x, Position().y, Position().z});
}

Vector3 clsMovingPlatform::GetVelocity() const { return {Leg().Velocity(Travel()), 0, 0}; }

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
