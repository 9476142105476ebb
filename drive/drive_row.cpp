#include "drive/drive_row.h"

#include <cstdio>

namespace drive {

std::string RowLine(const Row& row) {
  std::array<char, 256> line{};
  std::snprintf(line.data(), line.size(), "%d,%.9g,%.9g,%.9g,%.9g,%.9g,%.9g,%d,%d,%d,%d,%d,%s",
                row.frame, double{row.x}, double{row.y}, double{row.z}, double{row.hv},
                double{row.vv}, double{row.fv}, row.onGround, row.onIce, row.exploding, row.dead,
                row.stars, row.event);
  return line.data();
}

Row RowOf(const Car& car, int frame, bool onGround, int stars, Ending ending) {
  const Vector3 &at = car.position, &v = car.velocity;
  return {frame,    at.x,      at.y,          at.z,     v.x,   v.y,           v.z,
          onGround, car.OnIce, car.Exploding, car.Dead, stars, NameOf(ending)};
}

}  // namespace drive
