// Colours as three fractions, mixed in display space.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace art {

struct Color {
  double r = 0, g = 0, b = 0;
};

constexpr Color operator+(Color a, Color b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
constexpr Color operator*(Color a, double k) { return {a.r * k, a.g * k, a.b * k}; }
constexpr Color operator*(Color a, Color b) { return {a.r * b.r, a.g * b.g, a.b * b.b}; }

/// The colour written 0xRRGGBB.
constexpr Color Hex(uint32_t rgb) {
  return {((rgb >> 16) & 255U) / 255.0, ((rgb >> 8) & 255U) / 255.0, (rgb & 255U) / 255.0};
}

constexpr double Clamp01(double x) { return std::clamp(x, 0.0, 1.0); }

/// 0 below `from`, 1 above `to`, an S curve between; `from` may exceed `to` to run backwards.
constexpr double Smooth(double from, double to, double x) {
  const double t = Clamp01((x - from) / (to - from));
  return t * t * (3 - 2 * t);
}

constexpr double Mix(double a, double b, double t) { return a + (b - a) * t; }
constexpr Color Mix(Color a, Color b, double t) { return a * (1 - t) + b * t; }

/// Brightens towards white the way light does, never past it.
constexpr Color Screen(Color a, Color b) {
  return {1 - (1 - a.r) * (1 - b.r), 1 - (1 - a.g) * (1 - b.g), 1 - (1 - a.b) * (1 - b.b)};
}

/// The opaque pixel 0xFFRRGGBB nearest to `c`.
inline uint32_t ToPixel(Color c) {
  const auto byte = [](double x) { return static_cast<uint32_t>(std::lround(Clamp01(x) * 255.0)); };
  return 0xFF000000U | byte(c.r) << 16 | byte(c.g) << 8 | byte(c.b);
}

}  // namespace art
