// Generated drives, with everything a path can do.
#pragma once

#include <cmath>
#include <limits>
#include <random>

#include "drive/path.h"

/// Runs, turns, jumps, falls and stands in all directions from (0, 3, 5), a mark here and there.
inline drive::Path RandomPath(unsigned seed, size_t points) {
  std::mt19937 random(seed);
  const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
  drive::Path path;
  Vector3 place{0, 3, 5}, velocity;
  for (size_t i = 0; i < points; ++i) {
    if (below(12) == 0) velocity = {static_cast<float>(below(7)) * 0.1F - 0.3F, 0, 0.6F};
    if (below(25) == 0) velocity = {};
    if (below(25) == 0) velocity.z = -0.2F;
    if (below(15) == 0) velocity = {0, 0.3F, velocity.z * static_cast<float>(below(2))};
    if (velocity.y != 0 || place.y > 3) velocity.y = place.y < 1 ? 0 : velocity.y - 0.03F;
    place = {place.x + velocity.x, place.y + velocity.y, place.z + velocity.z};
    path.push_back({place, velocity, static_cast<uint8_t>(below(9) == 0 ? below(128) : 0)});
  }
  return path;
}

/// Paths that lead nowhere.
inline std::vector<drive::Path> OddPaths() {
  constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
  constexpr float kEndless = std::numeric_limits<float>::infinity();
  const drive::PathPoint still{{1, 2, 3}, {}, 127};
  std::vector<drive::Path> paths = {
      {}, {still}, drive::Path(60, still), {{{3e38F, 1, 1}, {}, 127}}};
  for (const float wrong : {kNone, kEndless, -3e38F, 1e6F}) {
    drive::Path path = RandomPath(1, 80);
    for (const size_t i : {0U, 24U, 25U, 26U, 50U, 79U}) path[i].place.y = wrong;
    for (size_t i = 30; i < 40; ++i) path[i].velocity.x = wrong;
    paths.push_back(path);
  }
  return paths;
}
