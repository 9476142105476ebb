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

clsMovingPlatform::Step clsMovingPlatform::NextStep() const {
  const int heading = Heading();
  const double length = heading * (Mspeed_ / 100.0);
  const float limit = ToSingle(double{StartPos_.x} + heading * Mdist_);
  const float next = ToSingle(position_.x + length);
  return {length, next, ToSingle(RoundTo3(limit)), heading < 0 ? next >= limit : next <= limit};
}

void clsMovingPlatform::move() {
  ChangedDir_ = false;
  if (Moving_ && Heading() != 0) {
    const Step step = NextStep();
    if (step.inside) {
      position_.x = ToSingle(RoundTo3(step.next));
    } else if (MloopBack()) {
      ChangedDir_ = true;
      position_.x = StartPos_.x = step.limit;
      Mdir_ = Mdir_ == Left ? Right : Left;
    } else {
      position_.x = StartPos_.x;
    }
  }
  CalculateCollisionPlanes();
}

Vector3 clsMovingPlatform::GetVelocity() const {
  if (Heading() == 0) return {};
  const Step step = NextStep();
  if (step.inside) return {ToSingle(step.length), 0, 0};
  // The rest of the way to the end; a jump back to the start carries nobody.
  return MloopBack() ? Vector3{ToSingle(double{step.limit} - position_.x), 0, 0} : Vector3{};
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

void clsMovingPlatform::RestartLeg() {
  StartPos_ = InitialPos_;
  Mdir_ = InitialDir_;
}
