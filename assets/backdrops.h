// The pictures that fill the view behind a track.
#pragma once

#include "assets/bake.h"

namespace art {

Pictures Backdrops();

// One function a picture. y runs from 0 to 1 downwards, x from 0 to 4/3.
constexpr double kBackdropWidth = 4.0 / 3.0;

Color BlueSky(double x, double y);
Color SunsetPeaks(double x, double y);
Color NorthernNight(double x, double y);
Color MistyForest(double x, double y);
Color RingedPlanet(double x, double y);
Color CityDusk(double x, double y);

}  // namespace art
