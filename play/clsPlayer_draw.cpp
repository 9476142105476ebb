// The car's picture, and the step it makes by being drawn.
#include <bit>
#include <span>

#include "level/maths.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/frame/clsShadow.h"

namespace {

constexpr double kRadiansPerDegree = 0.017453292;
constexpr float kSkid = 0.17453292F;                               ///< radians
constexpr float kBoxMiddle = 0.4F;                                 ///< behind the reference point
constexpr float kSpinStep = 30, kSpinEnd = 720, kSpinOver = 1080;  ///< degrees
constexpr float kExplosionSize = 0.06F;
constexpr uint32_t kBlack = 0xFF000000;

Matrix4 Translation(const Vector3& by) {
  Matrix4 matrix;
  maths::MakeTranslationMatrix(matrix, by);
  return matrix;
}

}  // namespace

void clsPlayer::load(const std::string& modelFile) {
  const d3dx::MeshPtr mesh = DirectX::D3DX->LoadMeshFromX(modelFile);
  std::vector<Material> materials;
  std::vector<TexturePtr> textures;
  const std::string skins = paths::InInstallFolder("\\skins\\");
  for (const d3dx::MeshMaterial& loaded : mesh->Materials()) {
    materials.push_back({loaded.material.diffuse, loaded.material.diffuse});
    textures.push_back(loaded.textureName.empty() ? nullptr
                                                  : DirectX::D3DX->CreateTextureFromFileEx(
                                                        skins + loaded.textureName, {}));
  }
  // Kept only when all of it is there: a car that could not be loaded is not drawn.
  Mesh_ = mesh;
  Ghost_ = GhostCar(*mesh);
  MaterialCount_ = mesh->MaterialCount();
  Materials_ = std::move(materials);
  MeshTextures_ = std::move(textures);
  resetPLayer();
  LoadExplosion();
}

void clsPlayer::LoadExplosion() {
  for (size_t i = 0; i < ExplosionTextures_.size(); ++i) {
    ExplosionTextures_[i] = DirectX::D3DX->CreateTextureFromFileEx(
        paths::InInstallFolder("\\misc\\explode") + std::to_string(i + 1) + ".bmp",
        {64, 64, TextureObject::Format::Colour16Alpha1, kBlack});
  }
}

void clsPlayer::draw() {
  if (car_.Exploding) {
    DrawExplosion();
    return;
  }
  car_.Advance();
  PlaceCar();
  DrawBody();
  FollowWithCamera();
  Shadow.draw(GetPosition(), GetVelocity());
}

void clsPlayer::DrawGhost(const Vector3& at) const { Ghost_.Draw(at); }

void clsPlayer::PlaceCar() {
  WorldMatrix_ = d3dx::Identity();
  TurnCar();
  StepMatrix_ = Translation(car_.position);
  WorldMatrix_ = d3dx::Multiply(WorldMatrix_, StepMatrix_);
  DirectX::D3DDevice->SetTransform(Transform::World, WorldMatrix_);
  DirectX::D3DDevice->SetVertexFormat(VertexFormat::World);
}

/// Sliding on ice without steering shows the car turned; a jump pad spins it about its middle.
void clsPlayer::TurnCar() {
  const auto skid = [this](float angle) {
    RotationMatrix_ = d3dx::RotationY(angle);
    WorldMatrix_ = d3dx::Multiply(WorldMatrix_, RotationMatrix_);
  };
  const KeyboardState& keys = DirectInput::KeyState;
  if (car_.OnIce && car_.velocity.x > 0 && keys[scancode::kRight] == 0) skid(-kSkid);
  if (car_.OnIce && car_.velocity.x < 0 && keys[scancode::kLeft] == 0) skid(kSkid);
  if (!Bouncing_) return;
  RotationMatrix_ = d3dx::RotationY(ToSingle(-SpinAngle_ * kRadiansPerDegree));
  WorldMatrix_ = d3dx::Multiply(Translation({0, 0, kBoxMiddle}), RotationMatrix_);
  WorldMatrix_ = d3dx::Multiply(WorldMatrix_, Translation({0, 0, -kBoxMiddle}));
  SpinAngle_ += kSpinStep;
  if (SpinAngle_ > kSpinEnd) Bouncing_ = false;
}

void clsPlayer::DrawBody() const {
  Device& device = *DirectX::D3DDevice;
  for (int32_t i = 0; i < MaterialCount_; ++i) {
    const auto slot = static_cast<size_t>(i);
    device.SetMaterial(Materials_[slot]);
    device.SetTexture(MeshTextures_[slot]);
    Mesh_->DrawSubset(device, i);
  }
}

void clsPlayer::FollowWithCamera() const {
  using DirectX::CameraPosition, DirectX::CameraTarget;
  CameraPosition.z = ToSingle(double{CameraPosition.z} + car_.velocity.z);
  CameraTarget.z = ToSingle(double{CameraTarget.z} + car_.velocity.z);
  DirectX::MatView = d3dx::LookAtLH(CameraPosition, CameraTarget, {0, 1, 0});
  DirectX::D3DDevice->SetTransform(Transform::View, DirectX::MatView);
}

void clsPlayer::DrawExplosion() {
  SpinAngle_ = kSpinOver;
  car_.AdvanceExplosion(ticks::Count());
  if (car_.ExplosionFrame >= Car::kFirstBlankPicture) return;
  Device& device = *DirectX::D3DDevice;
  device.SetPointSize(maths::FloatToLong(kExplosionSize));
  device.SetTransform(Transform::World, d3dx::Identity());
  device.SetVertexFormat(VertexFormat::Point);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetRenderState(RenderState::DepthWrite, false);
  device.SetTexture(ExplosionTextures_[static_cast<size_t>(car_.ExplosionFrame - 1)]);
  device.DrawPrimitiveUP(std::span(&SpriteVertex_, 1));
  device.SetRenderState(RenderState::DepthWrite, true);
}
