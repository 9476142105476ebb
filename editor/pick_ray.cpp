#include "editor/pick_ray.h"

#include "editor/main_controls.h"
#include "level/maths.h"
#include "platform/d3dx_maths.h"
#include "render/device/DirectX.h"

namespace {

constexpr float kNearDistance = 1.0F;
constexpr float kFarDistance = 100.0F;

}  // namespace

PickRay RayThrough(float x, float y) {
  const PictureArea& viewport = Controls().viewport;
  Vector3 nearPoint, farPoint;
  maths::GetPickRay(x, y, DirectX::kFieldOfView, viewport.ScaleWidth(), viewport.ScaleHeight(),
                    nearPoint, farPoint, kNearDistance, kFarDistance);
  return {nearPoint, d3dx::Subtract(farPoint, nearPoint)};
}
