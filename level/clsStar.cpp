#include "level/clsStar.h"

#include <cmath>

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

/// The box around all that a model reaches when it is turned about the vertical axis.
Extent Reach(const d3dx::MeshObject& mesh) {
  const Vector3 &low = mesh.Smallest(), &high = mesh.Greatest();
  const float radius = std::hypot(std::max(std::abs(low.x), std::abs(high.x)),
                                  std::max(std::abs(low.z), std::abs(high.z)));
  // A little more: the turned corners are rounded.
  const float wide = 1.001F * radius;
  return {{-wide, low.y, -wide}, {2 * wide, high.y - low.y, 2 * wide}};
}

}  // namespace

void clsStar::load(const std::string& modelFile) {
  visible_ = true;
  Look look;
  look.Mesh = DirectX::D3DX->LoadMeshFromX(modelFile);
  look.reach = Reach(*look.Mesh);
  for (const d3dx::MeshMaterial& loaded : look.Mesh->Materials()) {
    look.Materials.push_back({loaded.material.diffuse, loaded.material.diffuse});
    look.SkinTextures.push_back(loaded.textureName.empty() ? nullptr
                                                           : LoadSkin(loaded.textureName));
  }
  look_ = std::make_shared<const Look>(std::move(look));
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
  if (!look_ || look_->SkinTextures.empty()) return;
  Look look = *look_;
  look.SkinTextures[0] = std::move(skin);
  look_ = std::make_shared<const Look>(std::move(look));
}

void clsStar::Spin() {
  SpinAngle_ += 5;
  // Starting again at 1 shifts each turn by one degree.
  if (SpinAngle_ > 360) SpinAngle_ = 1;
}

void clsStar::draw() {
  if (!visible_) return;
  Spin();
  if (!look_) return;
  const Look& look = *look_;
  Device& device = *DirectX::D3DDevice;
  const Vector3 corner{position_.x + look.reach.corner.x, position_.y + look.reach.corner.y,
                       position_.z + look.reach.corner.z};
  if (!device.MaySee(corner, look.reach.size)) return;
  Matrix4 translation;
  maths::MakeTranslationMatrix(translation, position_);
  const Matrix4 rotation = d3dx::RotationY(ToSingle(SpinAngle_ * kRadiansPerDegree));
  device.SetTransform(Transform::World, d3dx::Multiply(rotation, translation));
  for (size_t i = 0; i < look.Materials.size(); ++i) {
    device.SetMaterial(look.Materials[i]);
    device.SetTexture(look.SkinTextures[i]);
    look.Mesh->DrawSubset(device, static_cast<int32_t>(i));
  }
}

std::array<CollisionPlane, 5> clsStar::DrawnPlanes() const {
  return box::Planes(position_, {1, 1, 1});
}

Extent clsStar::Drawn() const {
  return {{position_.x - 0.5F, position_.y, position_.z - 0.5F}, {1.5F, 1, 1.5F}};
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
