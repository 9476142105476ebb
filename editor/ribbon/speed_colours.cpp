#include "editor/ribbon/speed_colours.h"

#include <cmath>

namespace ribbon {

uint32_t MixColours(uint32_t a, uint32_t b, double share) {
  uint32_t mixed = 0;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    const double from = (a >> shift) & 0xFFU, to = (b >> shift) & 0xFFU;
    mixed |= static_cast<uint32_t>(std::lround(from + (to - from) * share)) << shift;
  }
  return mixed;
}

uint32_t SpeedColour(const Palette& palette, double speed) {
  const auto& stops = palette.stops;
  for (size_t i = 1; i < stops.size(); ++i) {
    const auto &slow = stops[i - 1], &fast = stops[i];
    if (!(speed < fast.speed)) continue;
    const double share = (speed - slow.speed) / (fast.speed - slow.speed);
    return MixColours(slow.colour, fast.colour, share > 0 ? share : 0);
  }
  return stops.back().colour;
}

}  // namespace ribbon
