#include "assets/noise.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace art {
namespace {

// So large that no picture reaches it.
constexpr int kNoRepeat = 1 << 20;

uint32_t Scramble(uint32_t h) {
  h ^= h >> 16;
  h *= 0x7FEB352DU;
  h ^= h >> 15;
  h *= 0x846CA68BU;
  return h ^ (h >> 16);
}

// Half of a hash, shared by all points of one column.
uint32_t ColumnBits(int x, int seed) {
  return Scramble(static_cast<uint32_t>(x) + 0x9E3779B9U * static_cast<uint32_t>(seed));
}

uint32_t HashBits(uint32_t column, int y) {
  return Scramble(column ^ (static_cast<uint32_t>(y) * 0x85EBCA6BU + 0x27D4EB2FU));
}

// std::floor is a library call here, and this is the hottest line of the program.
int Floor(double x) {
  const int i = static_cast<int>(x);
  return i - (x < i ? 1 : 0);
}

int Repeat(int i, int period) {
  if (i >= 0 && i < period) return i;
  const int rest = i % period;
  return rest < 0 ? rest + period : rest;
}

// The slope at a lattice corner, one of eight directions, times the way from it.
double Lean(uint32_t column, int y, double dx, double dy) {
  constexpr double d = 0.70710678;
  constexpr double slopes[8][2] = {{1, 0},  {d, d},   {0, 1},  {-d, d},
                                   {-1, 0}, {-d, -d}, {0, -1}, {d, -d}};
  const double* slope = slopes[HashBits(column, y) >> 29];
  return slope[0] * dx + slope[1] * dy;
}

double Lerp(double a, double b, double t) { return a + (b - a) * t; }

double Fade(double t) { return t * t * t * (t * (t * 6 - 15) + 10); }

}  // namespace

double Hash(int x, int y, int seed) { return HashBits(ColumnBits(x, seed), y) / 4294967296.0; }

double Noise(double x, double y, int period, int seed) {
  const int ix = Floor(x), iy = Floor(y);
  const double dx = x - ix, dy = y - iy;
  const double tx = Fade(dx), ty = Fade(dy);
  const uint32_t left = ColumnBits(Repeat(ix, period), seed);
  const uint32_t right = ColumnBits(Repeat(ix + 1, period), seed);
  const int top = Repeat(iy, period), low = Repeat(iy + 1, period);
  const double upper = Lerp(Lean(left, top, dx, dy), Lean(right, top, dx - 1, dy), tx);
  const double lower = Lerp(Lean(left, low, dx, dy - 1), Lean(right, low, dx - 1, dy - 1), tx);
  return 0.5 + 0.7 * Lerp(upper, lower, ty);
}

double Fractal(double u, double v, int cells, int octaves, int seed) {
  double sum = 0, weight = 0.5, total = 0;
  for (int i = 0; i < octaves; ++i, cells *= 2, weight *= 0.5) {
    sum += weight * Noise(u * cells, v * cells, cells, seed + i);
    total += weight;
  }
  return sum / total;
}

double Clouds(double x, double y, int octaves, int seed) {
  double sum = 0, weight = 0.5, total = 0, scale = 1;
  for (int i = 0; i < octaves; ++i, scale *= 2.03, weight *= 0.5) {
    sum += weight * Noise(x * scale, y * scale, kNoRepeat, seed + i);
    total += weight;
  }
  return sum / total;
}

double Ridges(double u, double v, int cells, int octaves, int seed) {
  double sum = 0, weight = 0.5, total = 0;
  for (int i = 0; i < octaves; ++i, cells *= 2, weight *= 0.5) {
    sum += weight * (1 - std::abs(2 * Noise(u * cells, v * cells, cells, seed + i) - 1));
    total += weight;
  }
  return sum / total;
}

Pebble Pebbles(double u, double v, int cells, int seed) {
  const double x = u * cells, y = v * cells;
  const int cx = Floor(x), cy = Floor(y);
  double nearest = 99, second = 99;  // squared until the end
  int ownerX = 0, ownerY = 0;
  for (int i = cx - 1; i <= cx + 1; ++i) {
    const uint32_t across = ColumnBits(Repeat(i, cells), seed);
    for (int j = cy - 1; j <= cy + 1; ++j) {
      const uint32_t bits = HashBits(across, Repeat(j, cells));
      const double dx = i + 0.15 + 0.7 * (bits >> 16) / 65536.0 - x;
      const double dy = j + 0.15 + 0.7 * (bits & 0xFFFFU) / 65536.0 - y;
      const double distance = dx * dx + dy * dy;
      second = std::min(second, std::max(nearest, distance));
      if (distance >= nearest) continue;
      nearest = distance;
      ownerX = i;
      ownerY = j;
    }
  }
  const double id = Hash(Repeat(ownerX, cells), Repeat(ownerY, cells), seed + 2);
  return {std::sqrt(nearest), std::sqrt(second), id};
}

}  // namespace art
