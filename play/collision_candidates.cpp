// The gathering of this frame's planes.
#include "level/footprint.h"
#include "level/globals.h"
#include "play/CollisionDetection.h"
#include "play/candidate_order.h"
#include "play/clsPlayer.h"

namespace CollisionDetection {
namespace {

using Indices = std::vector<size_t>;

/// The objects whose footprint holds the car's next place.
template <typename Object>
Indices IndicesNear(std::span<const Object> objects) {
  return IndicesInFootprint(objects, double{Player.Posx()} + Player.HorizontalVelocity(),
                            double{Player.Posz()} + Player.ForwardVelocity());
}

template <typename Object>
void Add(const Object& object, const TouchedFace& face, int16_t kindCode) {
  const CollisionPlane p = object.GetCollisionPlane(face.PlaneNumber);
  CollisionList.push_back({{p.a, p.b, p.c},
                           p,
                           kindCode,
                           face.PlaneNumber,
                           face.ObjectType,
                           static_cast<int16_t>(face.ObjectIndex),
                           static_cast<float>(object.Xpos()),
                           static_cast<float>(object.Ypos()),
                           static_cast<float>(object.Zpos()),
                           object.GetFaceCorners(face.PlaneNumber)});
}

}  // namespace

int32_t GatherCollisionCandidates() {
  const auto blocks = IndicesNear<clsblock>(Live(Document.Blocks, Document.BlockCount));
  const auto platforms =
      IndicesNear<clsMovingPlatform>(Live(Document.Platforms, Document.PlatformCount));
  const auto ramps = IndicesNear<clsRamp>(Live(Document.Ramps, Document.RampCount));
  const auto kindOf = [](size_t i) { return int16_t{Document.Blocks[i].changeactioncode()}; };
  CollisionList.clear();
  VisitInOrder(blocks, platforms, ramps, kindOf, [](const TouchedFace& face) {
    const auto index = static_cast<size_t>(face.ObjectIndex);
    if (face.ObjectType == BlockObject) {
      Add(Document.Blocks[index], face, face.KindCode);
    } else if (face.ObjectType == PlatformObject) {
      Add(Document.Platforms[index], face, Document.Platforms[index].changeactioncode());
    } else {
      Add(Document.Ramps[index], face, 0);
    }
    return true;
  });
  return static_cast<int32_t>(CollisionList.size());
}

}  // namespace CollisionDetection
