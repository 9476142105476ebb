// The order in which the planes near the car are answered. It is part of the behaviour: each answer
// changes the velocities that the planes after it are tested with.
#pragma once

#include <initializer_list>

#include "play/CollisionDetection.h"
#include "play/collision_answers.h"

namespace CollisionDetection {

/// Calls visit(face) for each until one returns false; returns whether all were visited. The near
/// objects are index lists in ascending order; `kindOf` gives a block's kind code.
template <typename Indices, typename KindOf, typename Visit>
bool VisitInOrder(const Indices& blocks, const Indices& platforms, const Indices& ramps,
                  KindOf kindOf, Visit visit) {
  constexpr int16_t kTop = 3, kHighEdge = 6;
  const auto all = [&](const Indices& near, ObjectKind type, std::initializer_list<int16_t> planes,
                       auto wanted) {
    for (const int16_t plane : planes) {
      for (const auto index : near) {
        const int16_t kind = type == BlockObject ? kindOf(index) : int16_t{0};
        if (wanted(kind) && !visit(TouchedFace{kind, plane, type, static_cast<int32_t>(index)})) {
          return false;
        }
      }
    }
    return true;
  };
  const auto any = [](int16_t) { return true; };
  const auto kill = [](int16_t kind) { return kind == clsblock::InstantKill; };
  const auto special = [](int16_t kind) {
    return kind != clsblock::Normal && kind != clsblock::InstantKill;
  };
  return all(platforms, PlatformObject, {1, 2, 3, 4, 5}, any) &&
         all(blocks, BlockObject, {kTop}, kill) && all(blocks, BlockObject, {kTop}, special) &&
         all(blocks, BlockObject, {kTop}, any) && all(ramps, RampObject, {kHighEdge}, any) &&
         all(ramps, RampObject, {1, 2, 3, 4, 5}, any) &&
         all(blocks, BlockObject, {1, 2, 4, 5}, any);
}

}  // namespace CollisionDetection
