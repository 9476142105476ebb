#include "level/clsblock.h"

#include <algorithm>

#include "level/track_values.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

const BoxObject::Kind clsblock::kKind = {
    {box::kSideColour, box::kSideTopEdgeColour}, {box::kSideColour, box::kSideTopEdgeColour}, true};

void clsblock::create(float CoordX, float CoordY, float CoordZ, float scaleX, float scaleY,
                      float scaleZ) {
  StartGeometry();
  PlaceAndSize({CoordX, CoordY, CoordZ}, {scaleX, scaleY, ToSingle(scaleZ - 0.1)});
  CalculateCollisionPlanes();
}

void clsblock::Ypos(float NewVal) {
  if (NewVal > -1.0) Place({Position().x, NewVal, Position().z});
}

int32_t clsblock::Zpos() const { return ToLong(Position().z); }

void clsblock::Zpos(int32_t NewVal) {
  if (NewVal > -1) Place({Position().x, Position().y, ToSingle(NewVal)});
}

void clsblock::Picture(size_t face, const FacePicturePtr& picture) {
  const auto bit = static_cast<uint8_t>(1U << face);
  const bool animated = AnimatedTextures::IsAnimatedTexture(NameOf(picture));
  AnimatedFaces_ = static_cast<uint8_t>(animated ? AnimatedFaces_ | bit : AnimatedFaces_ & ~bit);
  BoxObject::Picture(face, picture);
}

void clsblock::Texture(const std::string& Name, const std::string& face,
                       const std::string& TextureDir) {
  const int index = box::FaceIndex(face);
  if (index >= 0) Picture(static_cast<size_t>(index), LoadFacePicture(Name, TextureDir));
}

void clsblock::SETTEXTURE() const { DirectX::D3DDevice->SetTexture(TextureOf(Picture(0))); }

void clsblock::UpdateAnimatedTexture() {
  AnimatedTextures::Pictures pictures;
  UpdateAnimatedTexture(pictures);
}

void clsblock::UpdateAnimatedTexture(AnimatedTextures::Pictures& pictures) {
  for (size_t face = 0; AnimatedFaces_ >> face != 0; ++face) {
    if ((AnimatedFaces_ >> face & 1) == 0) continue;
    const std::string next = AnimatedTextures::NextAnimationFrame(NameOf(Picture(face)));
    const auto& frames = AnimatedTextures::AnimationFrames;
    const auto index = static_cast<size_t>(std::ranges::find(frames, next) - frames.begin());
    FacePicturePtr unknown;  // no frame any more: loading it fails
    FacePicturePtr& picture = index < pictures.size() ? pictures[index] : unknown;
    if (!picture) picture = LoadFacePicture(next, Track().TextureDir);
    Picture(face, picture);
  }
}

void clsblock::Bounce() {
  Bouncing_ = true;
  BouncePhase_ = -1.0F;
  BounceBase_ = Position().y;
}

void clsblock::draw() {
  DrawBox();
  if (Falling_) AdvanceFall();
  if (Bouncing_) AdvanceBounce();
}

void clsblock::AdvanceFall() {
  fallvel_ = ToSingle(double{fallvel_} + Track().Gravity);
  const Vector3& at = Position();
  Move({at.x, ToSingle(double{at.y} - fallvel_), at.z});
}

void clsblock::AdvanceBounce() {
  const Vector3 at = Position();
  float y = ToSingle(double{BounceBase_} + 1 - double{BouncePhase_} * BouncePhase_);
  fallvel_ = ToSingle(double{at.y} - y);
  if (BouncePhase_ >= 1.1F) {
    Bouncing_ = false;
    y = BounceBase_;
    fallvel_ = 0;
  }
  Move({at.x, y, at.z});
  BouncePhase_ = ToSingle(BouncePhase_ + 0.1);
}
