// What the car wears: paint, windows, lights and tyres.
#include <algorithm>
#include <array>
#include <cmath>

#include "assets/models.h"
#include "assets/shapes.h"

namespace art {
namespace {

constexpr Color kWhite = Hex(0xFFFFFF);
constexpr Color kPaint = Hex(0xF2352B);
constexpr Color kDarkPaint = Hex(0xB3181C);
/// Roof and hood, seen the whole drive: no floor has this colour next to a dark seam.
constexpr Color kRoof = Hex(0xFFF4D6);
constexpr Color kSeam = Hex(0x3A0F14);
constexpr Color kTyre = Hex(0x2B2C31);
constexpr double kEdge = 0.004;

// Two broad stripes run over the whole car.
Color Striped(Color paint, double x) {
  const double stripe = std::abs(std::abs(x) - 0.060) - 0.034;
  return Mix(paint, kWhite, Cover(stripe, kEdge));
}

Color Glass(double down) { return Mix(Hex(0x17233F), Hex(0x6FB7E8), Smooth(0.1, 1.0, down)); }

// The spoiler's wing: its dark ends, and the hind edge in red.
Color Wing(double along, double across) {
  const Color blade = Mix(Hex(0xFFDC4A), Hex(0xFFB412), Smooth(0.0, 1.0, across));
  const Color c = Mix(blade, kPaint, Cover(0.80 - across, 0.05));
  return Mix(c, Hex(0x2A2B33), Cover(0.24 - std::abs(along), kEdge));
}

// z counts from the front.
Color CarTop(double x, double z) {
  if (x > kWingStrip) return Wing(z - kCarSize / 2, (x - kWingStrip - 0.010) / 0.060);
  // A light top with one broad stripe inside a dark seam, on red flanks.
  Color c = Mix(kRoof, kPaint, Cover(std::abs(x) - 0.055, kEdge));
  const double seam = std::abs(x) - 0.30;
  c = Mix(kPaint, c, Cover(seam, kEdge));
  c = Mix(c, kSeam, Cover(std::abs(seam) - 0.014, kEdge));
  const Point lamp{std::abs(x), z};
  return Mix(c, Hex(0xFFF7C8), Cover(Box(lamp, {0.19, 0.045}, {0.05, 0.028}, 0.02), kEdge));
}

Color Wheel(Color c, double z, double y, double axle) {
  const Point p{z, y};
  const Point centre{-axle, kWheelRadius};
  const double away = Circle(p, centre, 0);
  c = Mix(c, Hex(0x14151A), Cover(away - 0.172, kEdge));
  c = Mix(c, kTyre, Cover(away - 0.158, kEdge));
  c = Mix(c, Hex(0x55575F), Cover(std::abs(away - 0.118) - 0.006, kEdge));
  c = Mix(c, Hex(0xE9EDF2), Cover(away - kHubRadius, kEdge));
  const double angle = std::atan2(y - centre.y, z - centre.x);
  const double spoke = std::abs(Wrapped(angle / (2 * kPi) * 5)) - 0.24;
  c = Mix(c, Hex(0x33353D), Cover(-spoke * away, kEdge) * Cover(away - 0.074, kEdge));
  return Mix(c, Hex(0xFFC928), Cover(away - 0.028, kEdge));
}

// z counts from the front.
Color CarSide(double z, double y) {
  Color c = Mix(kDarkPaint, kPaint, Smooth(0.08, 0.36, y));
  c = Mix(c, kWhite, Cover(std::abs(y - 0.235 - 0.10 * (z - 0.4)) - 0.020, kEdge));
  c = Mix(c, Hex(0x26272E), Cover(y - 0.120, kEdge));
  const std::array<Point, 4> window{
      {{0.345, 0.405}, {0.400, 0.585}, {0.600, 0.585}, {0.655, 0.405}}};
  c = Mix(c, Glass((0.60 - y) / 0.22), Cover(Convex({z, y}, window) + 0.004, kEdge));
  c = Mix(c, kPaint, Cover(std::max(std::abs(z - 0.505) - 0.012, 0.40 - y), kEdge));
  const double door = std::abs(Box({z, y}, {0.42, 0.27}, {0.115, 0.135}, 0.03)) - 0.003;
  c = Mix(c, c * 0.6, Cover(door, kEdge));
  const double fin = Box({z, y}, {0.74, 0.56}, {0.085, 0.085}, 0);
  c = Mix(c, y > 0.565 ? Hex(0xFFC928) : Hex(0x2A2B33), Cover(fin, kEdge));
  c = Wheel(c, z, y, kFrontAxle);
  return Wheel(c, z, y, kRearAxle);
}

Color CarRear(double x, double y) {
  const Point p{std::abs(x), y};
  Color c = Striped(Mix(kDarkPaint, kPaint, Smooth(0.15, 0.42, y)), x);
  c = Mix(c, Hex(0x26272E), Cover(y - 0.130, kEdge));
  c = Mix(c, Hex(0xC9CED8), Cover(Box(p, {0, 0.160}, {0.30, 0.037}, 0.01), kEdge));
  c = Mix(c, Hex(0x3A0A0C), Cover(Box(p, {0.185, 0.290}, {0.085, 0.052}, 0.02), kEdge));
  c = Mix(c, Hex(0xFF5A3C), Cover(Box(p, {0.205, 0.290}, {0.055, 0.040}, 0.015), kEdge));
  c = Mix(c, Hex(0xFFD98A), Cover(Box(p, {0.128, 0.290}, {0.016, 0.040}, 0.01), kEdge));
  c = Mix(c, Hex(0xF5F1DC), Cover(Box(p, {0, 0.262}, {0.075, 0.036}, 0.008), kEdge));
  c = Mix(c, Hex(0x2D3A66), Cover(Box(p, {0, 0.262}, {0.052, 0.014}, 0.004), kEdge));
  const std::array<Point, 4> window{
      {{-0.205, 0.415}, {-0.165, 0.590}, {0.165, 0.590}, {0.205, 0.415}}};
  c = Mix(c, Glass((0.60 - y) / 0.2), Cover(Convex({x, y}, window) + 0.004, kEdge));
  return Mix(c, Hex(0x14151A), Cover(Circle(p, {0.13, 0.105}, 0.026), kEdge));
}

// A narrow strip of lugs, wound around each wheel.
Color Tread(double turn, double across) {
  const double lug = std::abs(Wrapped(turn * 28 + (across < 0.5 ? 0.0 : 0.5)));
  const bool groove = std::abs(across - 0.5) < 0.05 || lug < 0.16;
  return groove ? Hex(0x191A1E) : Hex(0x3F4148);
}

Color CarFront(double x, double y) {
  const double fromTop = kCarSize - y;
  if (fromTop < kTreadHeight) return Tread(x / kCarSize + 0.5, fromTop / kTreadHeight);
  const Point p{std::abs(x), y};
  Color c = Striped(Mix(kDarkPaint, kPaint, Smooth(0.10, 0.32, y)), x);
  c = Mix(c, Hex(0x1E1F25), Cover(Box(p, {0, 0.165}, {0.115, 0.040}, 0.02), kEdge));
  c = Mix(c, Hex(0x1E1F25), Cover(Box(p, {0, 0.365}, {0.080, 0.022}, 0.01), kEdge));
  c = Mix(c, Hex(0xFFF7C8), Cover(Box(p, {0.185, 0.205}, {0.055, 0.036}, 0.02), kEdge));
  const std::array<Point, 4> window{
      {{-0.210, 0.395}, {-0.168, 0.592}, {0.168, 0.592}, {0.210, 0.395}}};
  return Mix(c, Glass((0.60 - y) / 0.2), Cover(Convex({x, y}, window) + 0.004, kEdge));
}

Color CarSkin(double u, double v) {
  const double x = Part(u * 2) * kCarSize, y = Part(v * 2) * kCarSize;
  if (v < 0.5) {
    return u < 0.5 ? CarTop(x - kCarSize / 2, y) : CarSide(kCarSize - x, kCarSize - y);
  }
  return u < 0.5 ? CarRear(x - kCarSize / 2, kCarSize - y)
                 : CarFront(x - kCarSize / 2, kCarSize - y);
}

}  // namespace

Pictures CarSkins() { return {{"PlayerSkin.bmp", BakePicture(256, 256, 3, CarSkin)}}; }

}  // namespace art
