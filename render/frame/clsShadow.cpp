#include "render/frame/clsShadow.h"

#include "level/footprint.h"
#include "level/globals.h"
#include "level/maths.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "render/device/DirectX.h"

namespace {

constexpr int16_t kTop = 3;
constexpr float kDepth = 100;  ///< how far below a point its ground is searched
constexpr uint32_t kWhite = 0x00FFFFFF;
constexpr uint32_t kMagenta = 0xFFFF00FF;
constexpr double kHalfCar = 0.4;
constexpr double kCar = 0.8;
constexpr double kPiece = 0.45;
/// Above the ground, so as not to fight with it in the depth buffer.
constexpr double kLift = 0.02;
/// A probed corner lies this far inside its piece, so that the pieces meet below the car's middle.
constexpr double kMargin = kPiece - kHalfCar;

struct PieceCorner {
  int x, z;  ///< 0 or 1: lower or higher side
};
/// Two triangles, clockwise from above.
constexpr std::array<PieceCorner, 6> kPieceCorners = {
    {{0, 1}, {1, 1}, {0, 0}, {1, 1}, {1, 0}, {0, 0}}};

bool IsRight(size_t piece) { return piece % 2 == 1; }
bool IsBack(size_t piece) { return piece >= 2; }

/// Where the straight line down from the point meets an object's top.
template <typename Object>
std::optional<Vector3> TopBelow(const Object& object, const Vector3& point) {
  const Vector3 down{0, ToSingle(double{point.y} - kDepth), 0};
  Vector3 hit;
  if (!maths::IntersectRayPlane(object.GetCollisionPlane(kTop), point, down, hit)) return {};
  // Higher up than the search is deep, the line points upwards.
  if (hit.y > point.y) return {};
  Vector3 greatest, smallest;
  object.GetCollisionPlaneBounds(kTop, greatest, smallest);
  const bool inside =
      smallest.x <= hit.x && hit.x <= greatest.x && smallest.z <= hit.z && hit.z <= greatest.z;
  return inside ? std::optional(hit) : std::nullopt;
}

}  // namespace

void clsShadow::create() {
  for (size_t piece = 0; piece < 4; ++piece) {
    for (size_t i = 0; i < kPieceCorners.size(); ++i) {
      const PieceCorner& corner = kPieceCorners[i];
      // Each piece shows its quarter of the picture, whose top is the front.
      const double u = (corner.x + (IsRight(piece) ? 1 : 0)) / 2.0;
      const double v = (1 - corner.z + (IsBack(piece) ? 1 : 0)) / 2.0;
      ShadowVertices_[piece * 6 + i] = DirectX::MakeVertex(ToSingle((corner.x - 0.5) * kPiece), 0,
                                                           ToSingle((corner.z - 1) * kPiece),
                                                           kWhite, 0, ToSingle(u), ToSingle(v));
    }
  }
  ShadowBuffer_ = DirectX::D3DDevice->CreateVertexBuffer(ShadowVertices_);
  ShadowTexture_ = DirectX::D3DX->CreateTextureFromFileEx(
      paths::InInstallFolder("\\misc\\shadowimage.bmp"),
      {64, 64, TextureObject::Format::Colour16Alpha1, kMagenta});
}

void clsShadow::draw(const Vector3& position, const Vector4& velocity) {
  const Nearby nearby = FindNearby(position, velocity);
  std::array<bool, 4> found{};
  for (size_t piece = 0; piece < 4; ++piece) {
    ProbePoint_ = {ToSingle(IsRight(piece) ? position.x + kHalfCar : position.x - kHalfCar),
                   ToSingle(position.y + kHalfCar),
                   ToSingle(position.z - (IsBack(piece) ? kCar : 0.0) + velocity.z)};
    const std::optional<Ground> ground = FindShadowGround(ProbePoint_, nearby);
    found[piece] = ground.has_value();
    if (!ground) continue;
    PieceOffsets_[piece] = ground->point;
    LayPiece(piece, *ground, velocity.z);
  }

  Device& device = *DirectX::D3DDevice;
  ShadowBuffer_ = device.CreateVertexBuffer(ShadowVertices_);
  device.SetVertexFormat(VertexFormat::World);
  device.SetTexture(ShadowTexture_);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  device.SetBlend(BlendState::Destination, Blend::InverseSourceAlpha);
  device.SetStreamSource(ShadowBuffer_, sizeof(Vertex));
  for (uint32_t piece = 0; piece < 4; ++piece) {
    if (!found[piece]) continue;
    Matrix4 world;
    maths::MakeTranslationMatrix(world, PieceOffsets_[piece]);
    device.SetTransform(Transform::World, world);
    device.DrawPrimitive(Primitive::TriangleList, piece * 6, 2);
  }
}

clsShadow::Nearby clsShadow::FindNearby(const Vector3& position, const Vector4& velocity) {
  const double x = double{position.x} + velocity.x, z = double{position.z} + velocity.z;
  return {
      IndicesInFootprint<clsblock>(Live(Document.Blocks, Document.BlockCount), x, z),
      IndicesInFootprint<clsMovingPlatform>(Live(Document.Platforms, Document.PlatformCount), x, z),
      IndicesInFootprint<clsRamp>(Live(Document.Ramps, Document.RampCount), x, z)};
}

std::optional<clsShadow::Ground> clsShadow::FindShadowGround(const Vector3& point,
                                                             const Nearby& nearby) {
  std::optional<Ground> ground;
  float best = kDepth;
  const auto offer = [&](const Vector3& hit, double top, float riseX = 0, float riseZ = 0) {
    const float distance = maths::Distance(point, hit);
    if (distance >= best) return;
    best = distance;
    ground = {{hit.x, ToSingle(top), hit.z}, riseX, riseZ};
  };
  for (const size_t i : nearby.blocks) {
    const clsblock& block = Document.Blocks[i];
    // A falling block was drawn before it fell in this frame.
    const double top = double{block.Ypos()} + block.scaleY() + block.fallvel();
    if (const auto hit = TopBelow(block, point)) offer(*hit, top);
  }
  for (const size_t i : nearby.platforms) {
    const clsMovingPlatform& platform = Document.Platforms[i];
    const double top = double{platform.Ypos()} + platform.scaleY();
    if (const auto hit = TopBelow(platform, point)) offer(*hit, top);
  }
  for (const size_t i : nearby.ramps) {
    const clsRamp& ramp = Document.Ramps[i];
    const bool alongZ = ramp.rotateVal() % 2 == 0;
    const float rise = ramp.GetGradient();
    if (const auto hit = TopBelow(ramp, point)) {
      offer(*hit, hit->y, alongZ ? 0 : rise, alongZ ? rise : 0);
    }
  }
  return ground;
}

void clsShadow::LayPiece(size_t piece, const Ground& ground, float forwardStep) {
  const double left = IsRight(piece) ? -kHalfCar : -kMargin;
  const double back = IsBack(piece) ? -kMargin : -kHalfCar;
  for (size_t i = 0; i < kPieceCorners.size(); ++i) {
    Vertex& vertex = ShadowVertices_[piece * 6 + i];
    vertex.x = ToSingle(left + kPieceCorners[i].x * kPiece);
    vertex.z = ToSingle(back + kPieceCorners[i].z * kPiece);
    // The camera has made the car's step already when the pieces are drawn, the ground was drawn
    // before: what shows below a piece is the ground one step back.
    const double rise =
        ground.riseX * double{vertex.x} + ground.riseZ * (double{vertex.z} - forwardStep);
    vertex.y = ToSingle(rise + kLift);
  }
}
