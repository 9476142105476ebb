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

void clsblock::draw() {
  DrawBox();
  if (!motion_.Moves()) return;
  const Vector3& at = Position();
  Move({at.x, motion_.Advance(at.y, Track().Gravity), at.z});
}

void clsblock::Resume(float y, const BlockMotion& motion) {
  motion_ = motion;
  Move({Position().x, y, Position().z});
}
