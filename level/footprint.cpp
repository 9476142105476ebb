#include "level/footprint.h"

namespace {

constexpr double kReach = 1;

bool Inside(double at, double low, double size) {
  return at + kReach > low && at < low + size + kReach;
}

}  // namespace

bool WithinFootprint(double x, double z, double objectX, double objectZ, double sizeX,
                     double sizeZ) {
  return Inside(z, objectZ, sizeZ) && Inside(x, objectX, sizeX);
}
