#include "level/clsRamp.h"

#include "level/box.h"
#include "level/shared_buffers.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace {

SharedBuffers<ramp::Shape>& Buffers() {
  static SharedBuffers<ramp::Shape> buffers;
  return buffers;
}

}  // namespace

void clsRamp::create(float CoordX, float CoordY, float CoordZ) {
  size_ = {1, 1, 1};
  MakeWedge(0);
  position_ = {CoordX, CoordY, CoordZ};
  CalculateCollisionPlanes();
}

void clsRamp::MakeWedge(uint8_t rotation) {
  look_->shape = {size_, rotation, 1, 0};
  UpdateChanges();
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
  MakeWedge(rotateVal_);
  CalculateCollisionPlanes();
}

void clsRamp::Texture(const std::string& Name, const std::string& face,
                      const std::string& TextureDir) {
  const int index = box::FaceIndex(face);
  if (index != 0 && index != 1) return;
  Picture(static_cast<size_t>(index), LoadFacePicture(Name, TextureDir));
}

void clsRamp::SelectRamp() {
  look_->shape.selected = 1;
  UpdateChanges();
}

void clsRamp::UnSelectramp() {
  look_->shape.selected = 0;
  UpdateChanges();
}

void clsRamp::draw() {
  Device& device = *DirectX::D3DDevice;
  if (!device.MaySee(position_, size_)) return;
  device.SetVertexFormat(VertexFormat::World);
  box::PlaceInWorld(position_, size_);
  Look& look = *look_;
  if (look.shape.made == 0) return;
  if (!look.VertexBuffer) look.VertexBuffer = Buffers().Of(look.shape);
  device.SetStreamSource(look.VertexBuffer, sizeof(Vertex));
  device.SetTexture(TextureOf(look.pictures[0]));
  device.DrawPrimitive(Primitive::TriangleList, 0, 2);
  device.SetTexture(TextureOf(look.pictures[1]));
  device.DrawPrimitive(Primitive::TriangleList, 6, 1);
  device.DrawPrimitive(Primitive::TriangleList, 9, 1);
  device.DrawPrimitive(Primitive::TriangleList, 12, 2);
}

void clsRamp::CalculateCollisionPlanes() { look_->planes = PlanesPlace{rotateVal_, Drawn()}; }

CollisionPlane clsRamp::GetCollisionPlane(int16_t planenumber) const {
  const std::optional<PlanesPlace>& at = look_->planes;
  // A ramp that was never created has planes of nothing.
  if (!at && planenumber >= 1 && planenumber <= ramp::kPlaneCount) return {};
  const PlanesPlace place = at.value_or(PlanesPlace());
  return ramp::Plane(place.rotation, place.extent.corner, place.extent.size, planenumber);
}

Vector3 clsRamp::GetPlaneNormal(int16_t planenumber) const {
  const CollisionPlane plane = GetCollisionPlane(planenumber);
  return {plane.a, plane.b, plane.c};
}

void clsRamp::GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest,
                                      Vector3& smallest) const {
  ramp::PlaneBounds(rotateVal_, position_, size_, planenumber, greatest, smallest);
}

ramp::Corners clsRamp::GetFaceCorners(int16_t planenumber) const {
  return ramp::FaceCorners(rotateVal_, position_, size_, planenumber);
}
