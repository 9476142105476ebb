#include "bench/view_volume.h"

#include <cmath>

namespace bench {
namespace {

bool Sees(double x, double up, double ahead) {
  constexpr double kAlongY = -0.686604, kAlongZ = 0.727027;  // where the camera looks
  constexpr double kTangent = 0.414213;                      // of half its field of view
  const double depth = up * kAlongY + ahead * kAlongZ, height = up * kAlongZ - ahead * kAlongY;
  return depth >= 1 && std::abs(x) <= depth * kTangent && std::abs(height) <= depth * kTangent;
}

}  // namespace

bool SeesWhole(const BlockRecord& box, float depth) {
  for (const float x : {box.Xpos, box.Xpos + box.scaleX}) {
    for (const float y : {box.Ypos, box.Ypos + box.scaleY}) {
      for (const float z : {box.Zpos, box.Zpos + box.scaleZ}) {
        if (!Sees(x, double{y} - 25, double{z} - depth + 18)) return false;
      }
    }
  }
  return true;
}

}  // namespace bench
