// The gathering of this frame's planes.
#include <initializer_list>

#include "level/footprint.h"
#include "level/globals.h"
#include "play/CollisionDetection.h"
#include "play/clsPlayer.h"

namespace CollisionDetection {
namespace {

constexpr int16_t kTop = 3, kHighEdge = 6;

using Indices = std::vector<size_t>;

/// The objects whose footprint holds the car's next place.
template <typename Object>
Indices IndicesNear(std::span<const Object> objects) {
  return IndicesInFootprint(objects, double{Player.Posx()} + Player.HorizontalVelocity(),
                            double{Player.Posz()} + Player.ForwardVelocity());
}

template <typename Object>
void Add(const Object& object, ObjectKind type, size_t index, int16_t plane, int16_t kindCode) {
  const CollisionPlane p = object.GetCollisionPlane(plane);
  CollisionList.push_back({{p.a, p.b, p.c},
                           p,
                           kindCode,
                           plane,
                           type,
                           static_cast<int16_t>(index),
                           static_cast<float>(object.Xpos()),
                           static_cast<float>(object.Ypos()),
                           static_cast<float>(object.Zpos()),
                           object.GetFaceCorners(plane)});
}

void AddPlatforms(const Indices& near, std::initializer_list<int16_t> planes) {
  for (const int16_t plane : planes) {
    for (const size_t i : near) {
      const clsMovingPlatform& platform = Document.Platforms[i];
      Add(platform, PlatformObject, i, plane, platform.changeactioncode());
    }
  }
}

void AddRamps(const Indices& near, std::initializer_list<int16_t> planes) {
  for (const int16_t plane : planes) {
    for (const size_t i : near) {
      Add(Document.Ramps[i], RampObject, i, plane, 0);
    }
  }
}

template <typename Wanted>
void AddBlocks(const Indices& near, std::initializer_list<int16_t> planes, Wanted wanted) {
  for (const int16_t plane : planes) {
    for (const size_t i : near) {
      const clsblock& block = Document.Blocks[i];
      const uint8_t kind = block.changeactioncode();
      if (wanted(kind)) Add(block, BlockObject, i, plane, kind);
    }
  }
}

}  // namespace

int32_t GatherCollisionCandidates() {
  const auto blocks = IndicesNear<clsblock>(Live(Document.Blocks, Document.BlockCount));
  const auto platforms =
      IndicesNear<clsMovingPlatform>(Live(Document.Platforms, Document.PlatformCount));
  const auto ramps = IndicesNear<clsRamp>(Live(Document.Ramps, Document.RampCount));
  const auto kill = [](uint8_t kind) { return kind == clsblock::InstantKill; };
  const auto special = [&](uint8_t kind) { return kind != clsblock::Normal && !kill(kind); };
  const auto any = [](uint8_t) { return true; };

  // The order is part of the behaviour: each answer changes the velocities that the planes after it
  // are tested with.
  CollisionList.clear();
  AddPlatforms(platforms, {1, 2, 3, 4, 5});
  AddBlocks(blocks, {kTop}, kill);
  AddBlocks(blocks, {kTop}, special);
  AddBlocks(blocks, {kTop}, any);
  AddRamps(ramps, {kHighEdge});
  AddRamps(ramps, {1, 2, 3, 4, 5});
  AddBlocks(blocks, {1, 2, 4, 5}, any);
  return static_cast<int32_t>(CollisionList.size());
}

}  // namespace CollisionDetection
