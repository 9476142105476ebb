#include "level/clsRamp.h"

#include <stdexcept>

#include "level/box.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

void clsRamp::create(float CoordX, float CoordY, float CoordZ) {
  size_ = {1, 1, 1};
  Vertices_ = ramp::WedgeVertices(0, size_);
  UpdateChanges();
  position_ = {CoordX, CoordY, CoordZ};
  CalculateCollisionPlanes();
}

int32_t clsRamp::Xpos() const { return ToLong(position_.x); }
int32_t clsRamp::Ypos() const { return ToLong(position_.y); }
int32_t clsRamp::Zpos() const { return ToLong(position_.z); }

void clsRamp::Xpos(int32_t NewVal) { position_.x = ToSingle(NewVal); }

void clsRamp::Ypos(int32_t NewVal) {
  if (NewVal > -1) position_.y = ToSingle(NewVal);
}

void clsRamp::Zpos(int32_t NewVal) {
  if (NewVal > -1) position_.z = ToSingle(NewVal);
}

int16_t clsRamp::scaleX() const { return ToInteger(size_.x); }
int16_t clsRamp::scaleY() const { return ToInteger(size_.y); }
int16_t clsRamp::scaleZ() const { return ToInteger(size_.z); }

void clsRamp::scaleX(int16_t NewValue) { Resize(size_.x, NewValue); }
void clsRamp::scaleY(int16_t NewValue) { Resize(size_.y, NewValue); }
void clsRamp::scaleZ(int16_t NewValue) { Resize(size_.z, NewValue); }

void clsRamp::Resize(float& size, int16_t value) {
  size = value;
  // One step back, so that rotate rebuilds the wedge in the rotation it has.
  rotateVal_ = rotateVal_ == 0 ? 3 : static_cast<uint8_t>(rotateVal_ - 1);
  rotate();
}

void clsRamp::rotate() {
  rotateVal_ = static_cast<uint8_t>((rotateVal_ + 1) % 4);
  Vertices_ = ramp::WedgeVertices(rotateVal_, size_);
  UpdateChanges();
  CalculateCollisionPlanes();
}

float clsRamp::GetGradient() const {
  const bool alongZ = rotateVal_ == 0 || rotateVal_ == 2;
  const double length = alongZ ? size_.z : size_.x;
  if (length == 0) return 0;
  const double gradient = size_.y / length;
  return ToSingle(rotateVal_ < 2 ? gradient : -gradient);
}

void clsRamp::Texture(const std::string& Name, const std::string& face,
                      const std::string& TextureDir) {
  const int index = box::FaceIndex(face);
  if (index != 0 && index != 1) return;
  const auto slot = static_cast<size_t>(index);
  Textures_[slot] = DirectX::D3DX->CreateTextureFromFile(TextureDir + Name);
  FaceTextureNames_[slot] = Name;
}

void clsRamp::SelectRamp() {
  for (Vertex& vertex : Vertices_) vertex.colour = ramp::kSelectedColour;
  UpdateChanges();
}

void clsRamp::UnSelectramp() {
  for (size_t i = 0; i < Vertices_.size(); ++i) {
    Vertices_[i].colour = i < ramp::kFirstSideVertex ? ramp::kSlopeColour : ramp::kSideColour;
  }
  UpdateChanges();
}

void clsRamp::UpdateChanges() { VertexBuffer_ = DirectX::D3DDevice->CreateVertexBuffer(Vertices_); }

void clsRamp::draw() {
  Device& device = *DirectX::D3DDevice;
  device.SetVertexFormat(VertexFormat::World);
  box::PlaceInWorld(position_, size_, WorldMatrix_, ScaleMatrix_);
  if (!VertexBuffer_) return;
  device.SetStreamSource(VertexBuffer_, sizeof(Vertex));
  device.SetTexture(Textures_[0]);
  device.DrawPrimitive(Primitive::TriangleList, 0, 2);
  device.SetTexture(Textures_[1]);
  device.DrawPrimitive(Primitive::TriangleList, 6, 1);
  device.DrawPrimitive(Primitive::TriangleList, 9, 1);
  device.DrawPrimitive(Primitive::TriangleList, 12, 2);
}

void clsRamp::CalculateCollisionPlanes() { Planes_ = ramp::Planes(rotateVal_, position_, size_); }

const CollisionPlane& clsRamp::GetCollisionPlane(int16_t planenumber) const {
  if (planenumber < 1 || planenumber > ramp::kPlaneCount) {
    throw std::out_of_range("Subscript out of range");
  }
  return Planes_[static_cast<size_t>(planenumber - 1)];
}

Vector3 clsRamp::GetPlaneNormal(int16_t planenumber) const {
  const CollisionPlane& plane = GetCollisionPlane(planenumber);
  return {plane.a, plane.b, plane.c};
}

void clsRamp::GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest,
                                      Vector3& smallest) const {
  ramp::PlaneBounds(rotateVal_, position_, size_, planenumber, greatest, smallest);
}

ramp::Corners clsRamp::GetFaceCorners(int16_t planenumber) const {
  return ramp::FaceCorners(rotateVal_, position_, size_, planenumber);
}
