#include "level/clsMovingPlatform.h"

#include "platform/numbers.h"

const BoxObject::Kind clsMovingPlatform::kKind = {
    {box::kSideColour, box::kSideColour}, {box::kTopColour, box::kTopColour}, false};

void clsMovingPlatform::create(float CoordX, float CoordY, float CoordZ) {
  StartGeometry();
  position_ = {CoordX, CoordY, CoordZ};
  CalculateCollisionPlanes();
  Moving_ = true;
}

void clsMovingPlatform::Xpos(float NewVal) { position_.x = StartPos_.x = InitialPos_.x = NewVal; }

void clsMovingPlatform::Ypos(float NewVal) {
  if (NewVal > -1.0) position_.y = StartPos_.y = InitialPos_.y = NewVal;
}

void clsMovingPlatform::Zpos(float NewVal) {
  if (NewVal > -1.0) position_.z = StartPos_.z = InitialPos_.z = NewVal;
}

void clsMovingPlatform::Texture(const std::string& Name, const std::string& face,
                                const std::string& TextureDir) {
  LoadTexture(Name, face, TextureDir);
}

int clsMovingPlatform::Heading() const { return Mdir_ == Left ? -1 : Mdir_ == Right ? 1 : 0; }

void clsMovingPlatform::move() {
  ChangedDir_ = false;
  const int heading = Heading();
  if (Moving_ && heading != 0) {
    const float limit = ToSingle(double{StartPos_.x} + heading * Mdist_);
    const float next = ToSingle(position_.x + heading * (Mspeed_ / 100.0));
    const bool inside = heading < 0 ? next >= limit : next <= limit;
    if (inside) {
      position_.x = ToSingle(RoundTo3(next));
    } else if (MloopBack()) {
      ChangedDir_ = true;
      position_.x = StartPos_.x = ToSingle(RoundTo3(limit));
      Mdir_ = heading < 0 ? Right : Left;
    } else {
      position_.x = StartPos_.x;
    }
  }
  CalculateCollisionPlanes();
}

Vector3 clsMovingPlatform::GetVelocity() const {
  const int heading = Heading();
  const double step = heading * (Mspeed_ / 100.0);
  const double next = position_.x + step;
  const double limit = double{StartPos_.x} + heading * Mdist_;
  const bool inside = heading < 0 ? next >= limit : next <= limit;
  return heading != 0 && inside ? Vector3{ToSingle(step), 0, 0} : Vector3{};
}

void clsMovingPlatform::StartAnimation() {
  InitialPos_ = StartPos_;
  SavedDir_ = Mdir_;
}

void clsMovingPlatform::StopAnimation() {
  position_ = StartPos_ = InitialPos_;
  Mdir_ = SavedDir_;
  RefreshVertexBuffer();
}

void clsMovingPlatform::ResetToOrigin() {
  if (Mdir_ != 1) position_ = InitialPos_;
}
