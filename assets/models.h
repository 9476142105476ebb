// The two models and the skins they wear.
#pragma once

#include <string>

#include "assets/bake.h"

namespace art {

/// The car: drives towards +z, the middle of its lower front edge at the origin.
std::string CarModel();

/// The star: upright around (0, 0.5, 0).
std::string StarModel();

Pictures CarSkins();
Pictures StarSkins();

/// The car's skin shows it from four sides, each in a quarter of the picture.
enum class CarView { kTop, kSide, kRear, kFront };
constexpr double kCarSize = 0.8;
/// The top rows of the front view hold the tyre's tread: unused there, the car being lower.
constexpr double kTreadHeight = 0.09;
/// Farther out than this the view from above holds the spoiler's wing, laid lengthwise.
constexpr double kWingStrip = 0.32;

constexpr double kStarRadius = 0.45, kStarInner = 0.215;
constexpr double kStarSkinScale = 0.94;  // leaves a rim around the outline

constexpr double kWheelRadius = 0.150, kHubRadius = 0.088;
constexpr double kFrontAxle = -0.165, kRearAxle = -0.605;

}  // namespace art
