// The car, lofted and boxed together.
#include <array>
#include <cmath>

#include "assets/color.h"
#include "assets/mesh.h"
#include "assets/models.h"

namespace art {
namespace {

Point InQuarter(CarView view, double x, double y) {
  const int index = static_cast<int>(view);
  const int column = index % 2, row = index / 2;
  return {(x + column) / 2, (y + row) / 2};
}

// Every face takes the view it turns to most.
Point UnfoldCar(Solid p, Solid n) {
  const double x = p.x / kCarSize + 0.5, up = 1 - p.y / kCarSize;
  if (std::abs(n.x) > 0.75) return InQuarter(CarView::kSide, 1 + p.z / kCarSize, up);
  if (n.y >= std::abs(n.z) * 0.9) return InQuarter(CarView::kTop, x, -p.z / kCarSize);
  return InQuarter(n.z < 0 ? CarView::kRear : CarView::kFront, x, up);
}

Point UnfoldRear(Solid p, Solid) {
  return InQuarter(CarView::kRear, p.x / kCarSize + 0.5, 1 - p.y / kCarSize);
}

struct Station {
  double z, half, low, high, bevel;
};

std::vector<Solid> BodyRing(const Station& s) {
  const double shoulder = s.half - 1.4 * s.bevel;
  return {{-s.half + s.bevel, s.low, s.z},
          {-s.half, s.low + s.bevel, s.z},
          {-s.half, s.high - s.bevel * 1.2, s.z},
          {-shoulder, s.high, s.z},
          {0, s.high + 0.012, s.z},
          {shoulder, s.high, s.z},
          {s.half, s.high - s.bevel * 1.2, s.z},
          {s.half, s.low + s.bevel, s.z},
          {s.half - s.bevel, s.low, s.z}};
}

void AddBody(Mesh& mesh) {
  constexpr Station kStations[] = {
      {0.000, 0.205, 0.130, 0.215, 0.020},  {-0.030, 0.255, 0.100, 0.262, 0.035},
      {-0.120, 0.285, 0.080, 0.308, 0.045}, {-0.300, 0.300, 0.075, 0.372, 0.050},
      {-0.420, 0.305, 0.075, 0.402, 0.050}, {-0.640, 0.305, 0.080, 0.420, 0.050},
      {-0.735, 0.295, 0.100, 0.415, 0.050}, {-0.765, 0.270, 0.130, 0.375, 0.040}};
  std::vector<std::vector<Solid>> rings;
  for (const Station& station : kStations) rings.push_back(BodyRing(station));
  mesh.AddLoft(rings, {0, 0.25, -0.4});
}

// A rectangle with cut corners, seen from above.
std::vector<Solid> CabinRing(double y, double half, double front, double rear, double cut) {
  return {{-half + cut, y, front}, {half - cut, y, front}, {half, y, front - cut},
          {half, y, rear + cut},   {half - cut, y, rear},  {-half + cut, y, rear},
          {-half, y, rear + cut},  {-half, y, front - cut}};
}

void AddCabin(Mesh& mesh) {
  const std::vector<std::vector<Solid>> rings{CabinRing(0.375, 0.262, -0.262, -0.700, 0.040),
                                              CabinRing(0.605, 0.205, -0.385, -0.610, 0.035),
                                              CabinRing(0.645, 0.165, -0.425, -0.575, 0.030)};
  mesh.AddLoft(rings, {0, 0.5, -0.5});
}

// The wing lies lengthwise in the strip beside the body in the view from above.
Point UnfoldWing(Solid p, Solid) {
  const double across = kWingStrip + 0.010 + 0.060 * Clamp01((-0.67 - p.z) / 0.12);
  return InQuarter(CarView::kTop, 0.5 + across / kCarSize, 0.5 + p.x / kCarSize);
}

void AddSpoiler(Mesh& mesh) {
  for (const double side : {-1.0, 1.0}) {
    mesh.AddBox({side * 0.19 - 0.018, 0.38, -0.755}, {side * 0.19 + 0.018, 0.53, -0.70});
    mesh.AddBox({side * 0.345 - 0.012, 0.485, -0.80}, {side * 0.345 + 0.012, 0.60, -0.66});
  }
  // The wing leans forward.
  const std::vector<Solid> left{{-0.345, 0.515, -0.67},
                                {-0.345, 0.535, -0.67},
                                {-0.345, 0.575, -0.79},
                                {-0.345, 0.550, -0.79}};
  std::vector<Solid> right = left;
  for (Solid& corner : right) corner.x = -corner.x;
  const Solid inside{0, 0.545, -0.73};
  for (size_t i = 0; i < left.size(); ++i) {
    const size_t next = (i + 1) % left.size();
    mesh.AddFace(std::array{left[i], left[next], right[next], right[i]}, inside, UnfoldWing);
  }
}

std::vector<Solid> Round(Solid centre, double radius, int sides, bool alongX) {
  std::vector<Solid> ring;
  for (int i = 0; i < sides; ++i) {
    const double a = 2 * kPi * i / sides;
    const double c = radius * std::cos(a), s = radius * std::sin(a);
    ring.push_back(centre + (alongX ? Solid{0, s, c} : Solid{c, s, 0}));
  }
  return ring;
}

constexpr int kWheelSides = 14;

// The tread winds along the strip kept for it in the front view.
Point UnfoldTread(double turn, double across) {
  return InQuarter(CarView::kFront, turn, (0.1 + 0.8 * across) * kTreadHeight / kCarSize);
}

Point UnfoldSide(Solid p, Solid) {
  return InQuarter(CarView::kSide, 1 + p.z / kCarSize, 1 - p.y / kCarSize);
}

void AddWheel(Mesh& mesh, double side, double axle) {
  const auto ring = [&](double x, double radius) {
    return Round({side * x, kWheelRadius, axle}, radius, kWheelSides, true);
  };
  const std::vector<Solid> inner = ring(0.255, 0.148), tread = ring(0.375, kWheelRadius),
                           wall = ring(0.400, 0.128), rim = ring(0.400, kHubRadius),
                           hub = ring(0.382, 0.076);
  const Solid inside{side * 0.33, kWheelRadius, axle};
  for (size_t i = 0; i < kWheelSides; ++i) {
    const size_t next = (i + 1) % kWheelSides;
    const double turn = static_cast<double>(i) / kWheelSides;
    const Unfold unfold = [&](Solid p, Solid) {
      const Solid away = p - tread[i];
      const bool far = away.y * away.y + away.z * away.z > 0.001;
      return UnfoldTread(turn + (far ? 1.0 / kWheelSides : 0), (std::abs(p.x) - 0.255) / 0.12);
    };
    mesh.AddFace(std::array{inner[i], inner[next], tread[next], tread[i]}, inside, unfold);
    mesh.AddFace(std::array{tread[i], tread[next], wall[next], wall[i]}, inside, UnfoldSide);
    mesh.AddFace(std::array{wall[i], wall[next], rim[next], rim[i]}, inside, UnfoldSide);
    // The rim's lip faces the axle: its back is the tread.
    mesh.AddFace(std::array{rim[i], rim[next], hub[next], hub[i]}, tread[i], UnfoldSide);
  }
  mesh.AddFace(hub, inside);
}

void AddTrim(Mesh& mesh) {
  mesh.AddBox({-0.10, 0.290, -0.27}, {0.10, 0.400, -0.12});  // air scoop
  mesh.Wear(UnfoldRear);
  mesh.AddBox({-0.27, 0.125, -0.785}, {0.27, 0.195, -0.75});  // bumper
  for (const double side : {-1.0, 1.0}) {
    const std::array<std::vector<Solid>, 2> pipe{
        Round({side * 0.13, 0.105, -0.70}, 0.034, 8, false),
        Round({side * 0.13, 0.105, -0.80}, 0.034, 8, false)};
    mesh.AddLoft(pipe, {side * 0.13, 0.105, -0.75});
  }
  mesh.Wear(UnfoldCar);
}

}  // namespace

std::string CarModel() {
  Mesh mesh(UnfoldCar);
  AddBody(mesh);
  AddCabin(mesh);
  AddSpoiler(mesh);
  AddTrim(mesh);
  for (const double side : {-1.0, 1.0}) {
    AddWheel(mesh, side, kFrontAxle);
    AddWheel(mesh, side, kRearAxle);
  }
  mesh.SmoothNormals(38);
  return mesh.Text("car", "PlayerSkin.bmp");
}

}  // namespace art
