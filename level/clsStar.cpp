#include "level/clsStar.h"

#include "level/box.h"
#include "level/maths.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "render/device/DirectX.h"

namespace {

constexpr double kRadiansPerDegree = 0.017453292;

TexturePtr LoadSkin(const std::string& name) {
  return DirectX::D3DX->CreateTextureFromFileEx(paths::InInstallFolder("\\skins\\") + name, {});
}

}  // namespace

void clsStar::load(const std::string& modelFile) {
  visible_ = true;
  Mesh_ = DirectX::D3DX->LoadMeshFromX(modelFile);
  MaterialCount_ = Mesh_->MaterialCount();
  Materials_.clear();
  SkinTextures_.clear();
  for (const d3dx::MeshMaterial& loaded : Mesh_->Materials()) {
    Materials_.push_back({loaded.material.diffuse, loaded.material.diffuse});
    SkinTextures_.push_back(loaded.textureName.empty() ? nullptr : LoadSkin(loaded.textureName));
  }
}

int32_t clsStar::Xpos() const { return ToLong(position_.x); }
int32_t clsStar::Ypos() const { return ToLong(position_.y); }
int32_t clsStar::Zpos() const { return ToLong(position_.z); }

void clsStar::Xpos(int32_t NewVal) { position_.x = ToSingle(NewVal); }

void clsStar::Ypos(int32_t NewVal) {
  if (NewVal > -1) position_.y = ToSingle(NewVal);
}

void clsStar::Zpos(int32_t NewVal) {
  if (NewVal > -1) position_.z = ToSingle(NewVal);
}

void clsStar::selectstar() { Skin("StarSkin_selected.bmp"); }
void clsStar::unSelectStar() { Skin("StarSkin.bmp"); }

void clsStar::Skin(const char* name) {
  TexturePtr skin = LoadSkin(name);
  if (!SkinTextures_.empty()) SkinTextures_[0] = std::move(skin);
}

void clsStar::draw() {
  if (!visible_) return;
  SpinAngle_ += 5;
  // Starting again at 1 shifts each turn by one degree.
  if (SpinAngle_ > 360) SpinAngle_ = 1;
  RotationMatrix_ = d3dx::RotationY(ToSingle(SpinAngle_ * kRadiansPerDegree));
  maths::MakeTranslationMatrix(TranslationMatrix_, position_);
  WorldMatrix_ = d3dx::Multiply(RotationMatrix_, TranslationMatrix_);
  Device& device = *DirectX::D3DDevice;
  device.SetTransform(Transform::World, WorldMatrix_);
  for (int32_t i = 0; i < MaterialCount_; ++i) {
    const auto slot = static_cast<size_t>(i);
    device.SetMaterial(Materials_[slot]);
    device.SetTexture(SkinTextures_[slot]);
    Mesh_->DrawSubset(device, i);
  }
}

std::array<CollisionPlane, 5> clsStar::DrawnPlanes() const {
  return box::Planes(position_, {1, 1, 1});
}

CollisionPlane clsStar::GetCollisionPlanes(int16_t planenumber) const {
  if (planenumber < 1 || planenumber > kPlaneCount) return {};
  return DrawnPlanes()[static_cast<size_t>(planenumber - 1)];
}

clsStar::Corners clsStar::GetFaceCorners(int16_t planenumber) const {
  const auto at = [this](double dx, double dy, double dz) {
    return Vector3{ToSingle(position_.x + dx), ToSingle(position_.y + dy),
                   ToSingle(position_.z + dz)};
  };
  switch (planenumber) {
    case 1:
      return {at(-0.4, 1, -0.4), at(-0.4, 1, 0.4), at(-0.4, 0, 0.4), at(-0.4, 0, -0.4)};
    case 2:
      return {at(0.4, 1, -0.4), at(0.4, 1, 0.4), at(0.4, 0, 0.4), at(0.4, 0, -0.4)};
    case 3:
      return {at(-0.5, 1, -0.5), at(-0.5, 1, 0.5), at(0.5, 1, 0.5), at(0.5, 1, -0.5)};
    case 4:
      return {at(-0.4, 0, -0.4), at(-0.4, 1, -0.4), at(0.4, 1, -0.4), at(0.4, 0, -0.4)};
    default:
      return {};
  }
}
