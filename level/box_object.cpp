#include "level/box_object.h"

#include <stdexcept>

#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace {

size_t PlaneIndex(int16_t planenumber) {
  if (planenumber < 1 || planenumber > box::kPlaneCount) {
    throw std::out_of_range("Subscript out of range");
  }
  return static_cast<size_t>(planenumber - 1);
}

}  // namespace

void BoxObject::scaleX(float value) { Resize(box::Axis::X, size_.x, value); }
void BoxObject::scaleY(float value) { Resize(box::Axis::Y, size_.y, value); }
void BoxObject::scaleZ(float value) { Resize(box::Axis::Z, size_.z, value); }

void BoxObject::Resize(box::Axis axis, float& size, float value) {
  if (value <= 0) return;
  size = value;
  const double sideFactor = ScaleTextureSide_ > 0 ? ScaleTextureSide_ : double{value};
  const double topFactor = ScaleTextureTop_ > 0 ? ScaleTextureTop_ : double{value};
  box::Resize(Vertices_, axis, sideFactor, topFactor,
              axis == box::Axis::Z ? kind_->resizedSidesDepth : kind_->resizedSides);
  RefreshVertexBuffer();
}

void BoxObject::AlignTexureCoords(int16_t Side, int16_t value) {
  const double stretch = value;
  const box::Factors factors = value != 0 ? box::Factors{stretch, stretch, stretch}
                                          : box::Factors{size_.x, size_.y, size_.z};
  if (Side == 1) {
    box::StretchSides(Vertices_, factors);
    ScaleTextureSide_ = ToByte(value);
  } else {
    box::StretchTop(Vertices_, factors);
    ScaleTextureTop_ = ToByte(value);
  }
  RefreshVertexBuffer();
}

void BoxObject::SelectBlock() {
  box::Colour(Vertices_, box::kSelectedColour, box::kSelectedColour);
  RefreshVertexBuffer();
}

void BoxObject::UnSelectBlock() {
  box::Colour(Vertices_, box::kSideColour, box::kTopColour);
  RefreshVertexBuffer();
}

const CollisionPlane& BoxObject::GetCollisionPlane(int16_t planenumber) const {
  return Planes_[PlaneIndex(planenumber)];
}

Vector3 BoxObject::GetPlaneNormal(int16_t planenumber) const {
  const CollisionPlane& plane = GetCollisionPlane(planenumber);
  return {plane.a, plane.b, plane.c};
}

void BoxObject::GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest,
                                        Vector3& smallest) const {
  box::PlaneBounds(position_, size_, planenumber, greatest, smallest);
}

box::Corners BoxObject::GetFaceCorners(int16_t planenumber) const {
  return box::FaceCorners(position_, size_, planenumber);
}

void BoxObject::StartGeometry() {
  Vertices_ = box::Unit();
  RefreshVertexBuffer();
}

void BoxObject::RefreshVertexBuffer() {
  VertexBuffer_ = DirectX::D3DDevice->CreateVertexBuffer(Vertices_);
  if (kind_->planesFollowBuffer) CalculateCollisionPlanes();
}

void BoxObject::CalculateCollisionPlanes() { Planes_ = box::Planes(position_, size_); }

void BoxObject::DrawBox() {
  Device& device = *DirectX::D3DDevice;
  device.SetVertexFormat(VertexFormat::World);
  box::PlaceInWorld(position_, size_, WorldMatrix_, ScaleMatrix_);
  // A fresh object has no geometry yet.
  if (!VertexBuffer_) return;
  device.SetStreamSource(VertexBuffer_, sizeof(Vertex));
  for (uint32_t face = 0; face < Textures_.size(); ++face) {
    device.SetTexture(Textures_[face]);
    device.DrawPrimitive(Primitive::TriangleList, face * 6, 2);
  }
}

int BoxObject::LoadTexture(const std::string& Name, const std::string& face,
                           const std::string& TextureDir) {
  const int index = box::FaceIndex(face);
  if (index < 0) return index;
  // Loading comes first: a failure leaves the face as it was.
  Textures_[static_cast<size_t>(index)] =
      DirectX::D3DX->CreateTextureFromFileEx(TextureDir + Name, {});
  FaceTextureNames_[static_cast<size_t>(index)] = Name;
  return index;
}
