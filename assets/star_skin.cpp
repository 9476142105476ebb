// What the star wears, plain and selected.
#include <cmath>

#include "assets/models.h"
#include "assets/shapes.h"

namespace art {
namespace {

struct StarColors {
  Color heart, light, dark, rim;
};

Color StarSkin(const StarColors& colors, double u, double v) {
  const Point p{(u - 0.5) * 2 / kStarSkinScale, (v - 0.5) * 2 / kStarSkinScale};
  const double away = std::hypot(p.x, p.y);
  // The halves of each arm differ, as the facets of a cut stone do.
  const double arm = std::atan2(p.x, -p.y) * 5 / (2 * kPi);
  const bool bright = Part(arm) > 0.5;
  Color c = Mix(bright ? colors.light : colors.dark, colors.heart, Smooth(0.62, 0.0, away));
  const double inner = Star(p, {}, 0.62, 0.62 * kStarInner / kStarRadius, 5);
  c = Mix(c, Hex(0xFFFFFF), 0.35 * Cover(std::abs(inner) - 0.012, 0.012));
  const double outline = Star(p, {}, 1.0, kStarInner / kStarRadius, 5);
  return Mix(c, colors.rim, Cover(-outline - 0.035, 0.02));
}

Image BakeStar(const StarColors& colors) {
  return BakePicture(128, 128, 3, [&](double u, double v) { return StarSkin(colors, u, v); });
}

}  // namespace

Pictures StarSkins() {
  return {{"StarSkin.bmp", BakeStar({Hex(0xFFF9C0), Hex(0xFFD935), Hex(0xFFAE14), Hex(0xFFB526)})},
          {"StarSkin_selected.bmp",
           BakeStar({Hex(0xFFFFFF), Hex(0x4FF3FF), Hex(0xF04BE8), Hex(0x3B4CFF)})}};
}

}  // namespace art
