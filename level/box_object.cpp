#include "level/box_object.h"

#include <stdexcept>

#include "level/shared_buffers.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace {

SharedBuffers<box::Shape>& Buffers() {
  static SharedBuffers<box::Shape> buffers;
  return buffers;
}

}  // namespace

void BoxObject::scaleX(float value) { Resize(box::Axis::X, &Vector3::x, value); }
void BoxObject::scaleY(float value) { Resize(box::Axis::Y, &Vector3::y, value); }
void BoxObject::scaleZ(float value) { Resize(box::Axis::Z, &Vector3::z, value); }

void BoxObject::Resize(box::Axis axis, float Vector3::*size, float value) {
  if (value <= 0) return;
  LeavePlanes();
  size_.*size = value;
  const double sideFactor = ScaleTextureSide_ > 0 ? ScaleTextureSide_ : double{value};
  const double topFactor = ScaleTextureTop_ > 0 ? ScaleTextureTop_ : double{value};
  box::Resize(look_->shape, axis, sideFactor, topFactor,
              axis == box::Axis::Z ? look_->kind->resizedSidesDepth : look_->kind->resizedSides);
  RefreshVertexBuffer();
}

void BoxObject::AlignTexureCoords(int16_t Side, int16_t value) {
  const double stretch = value;
  const box::Factors factors = value != 0 ? box::Factors{stretch, stretch, stretch}
                                          : box::Factors{size_.x, size_.y, size_.z};
  if (Side == 1) {
    box::StretchSides(look_->shape, factors);
    ScaleTextureSide_ = ToByte(value);
  } else {
    box::StretchTop(look_->shape, factors);
    ScaleTextureTop_ = ToByte(value);
  }
  RefreshVertexBuffer();
}

void BoxObject::SelectBlock() {
  box::Colour(look_->shape, box::kSelectedColour, box::kSelectedColour);
  RefreshVertexBuffer();
}

void BoxObject::UnSelectBlock() {
  box::Colour(look_->shape, box::kSideColour, box::kTopColour);
  RefreshVertexBuffer();
}

CollisionPlane BoxObject::GetCollisionPlane(int16_t planenumber) const {
  const Extent at = planesBehind_ ? look_->planes : Drawn();
  return box::Plane(at.corner, at.size, planenumber);
}

Vector3 BoxObject::GetPlaneNormal(int16_t planenumber) const {
  const CollisionPlane plane = GetCollisionPlane(planenumber);
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
  look_->shape = box::Unit();
  RefreshVertexBuffer();
}

void BoxObject::RefreshVertexBuffer() {
  look_->VertexBuffer = nullptr;
  if (look_->kind->planesFollowBuffer) CalculateCollisionPlanes();
}

void BoxObject::DrawBoxAt(const Vector3& position) {
  Device& device = *DirectX::D3DDevice;
  if (!device.MaySee(position, size_)) return;
  device.SetVertexFormat(VertexFormat::World);
  box::PlaceInWorld(position, size_);
  Look& look = *look_;
  // A fresh object has no geometry yet.
  if (!box::IsVisible(look.shape)) return;
  if (!look.VertexBuffer) look.VertexBuffer = Buffers().Of(look.shape);
  device.SetStreamSource(look.VertexBuffer, sizeof(Vertex));
  for (uint32_t face = 0; face < look.pictures.size(); ++face) {
    device.SetTexture(TextureOf(look.pictures[face]));
    device.DrawPrimitive(Primitive::TriangleList, face * 6, 2);
  }
}

int BoxObject::LoadTexture(const std::string& Name, const std::string& face,
                           const std::string& TextureDir) {
  const int index = box::FaceIndex(face);
  // Loading comes first: a failure leaves the face as it was.
  if (index >= 0) Picture(static_cast<size_t>(index), LoadFacePicture(Name, TextureDir));
  return index;
}
