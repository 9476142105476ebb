#include "level/clsblock.h"

#include <algorithm>

#include "level/track_values.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace {

constexpr std::array<const char*, 4> kFaceLetters = {"A", "B", "C", "D"};

}  // namespace

const BoxObject::Kind clsblock::kKind = {
    {box::kSideColour, box::kSideTopEdgeColour}, {box::kSideColour, box::kSideTopEdgeColour}, true};

void clsblock::create(float CoordX, float CoordY, float CoordZ, float scaleX, float scaleY,
                      float scaleZ) {
  StartGeometry();
  position_ = {CoordX, CoordY, CoordZ};
  size_ = {scaleX, scaleY, ToSingle(scaleZ - 0.1)};
  CalculateCollisionPlanes();
}

void clsblock::Ypos(float NewVal) {
  if (NewVal > -1.0) position_.y = NewVal;
}

int32_t clsblock::Zpos() const { return ToLong(position_.z); }

void clsblock::Zpos(int32_t NewVal) {
  if (NewVal > -1) position_.z = ToSingle(NewVal);
}

void clsblock::Texture(const std::string& Name, const std::string& face,
                       const std::string& TextureDir) {
  const int index = LoadTexture(Name, face, TextureDir);
  if (index < 0) return;
  AnimatedFaces_[static_cast<size_t>(index)] = AnimatedTextures::IsAnimatedTexture(Name);
}

void clsblock::SETTEXTURE() const { DirectX::D3DDevice->SetTexture(Textures_[0]); }

void clsblock::UpdateAnimatedTexture() {
  AnimatedTextures::Pictures pictures;
  UpdateAnimatedTexture(pictures);
}

void clsblock::UpdateAnimatedTexture(AnimatedTextures::Pictures& pictures) {
  for (size_t face = 0; face < kFaceLetters.size(); ++face) {
    if (!AnimatedFaces_[face]) continue;
    const std::string next = AnimatedTextures::NextAnimationFrame(FaceTextureNames_[face]);
    const auto& frames = AnimatedTextures::AnimationFrames;
    const auto index = static_cast<size_t>(std::ranges::find(frames, next) - frames.begin());
    TexturePtr unknown;  // no frame any more: loading it fails
    TexturePtr& picture = index < pictures.size() ? pictures[index] : unknown;
    if (!picture) {
      Texture(next, kFaceLetters[face], Track().TextureDir);
      picture = Textures_[face];
    } else {
      Textures_[face] = picture;
      FaceTextureNames_[face] = next;
    }
  }
}

void clsblock::Bounce() {
  Bouncing_ = true;
  BouncePhase_ = -1.0F;
  BounceBase_ = position_.y;
}

void clsblock::draw() {
  DrawBox();
  if (Falling_) AdvanceFall();
  if (Bouncing_) AdvanceBounce();
}

void clsblock::AdvanceFall() {
  fallvel_ = ToSingle(double{fallvel_} + Track().Gravity);
  position_.y = ToSingle(double{position_.y} - fallvel_);
  CalculateCollisionPlanes();
}

void clsblock::AdvanceBounce() {
  const float before = position_.y;
  position_.y = ToSingle(double{BounceBase_} + 1 - double{BouncePhase_} * BouncePhase_);
  fallvel_ = ToSingle(double{before} - position_.y);
  if (BouncePhase_ >= 1.1F) {
    Bouncing_ = false;
    position_.y = BounceBase_;
    fallvel_ = 0;
  }
  CalculateCollisionPlanes();
  BouncePhase_ = ToSingle(BouncePhase_ + 0.1);
}
