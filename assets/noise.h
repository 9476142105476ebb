// Repeatable roughness: everything derives from an integer hash, so every run draws the same.
#pragma once

namespace art {

/// A fraction in [0, 1) that looks random.
double Hash(int x, int y, int seed);

/// Smooth noise around 0.5. Coordinates are counted in cells and repeat after `period` cells.
double Noise(double x, double y, int period, int seed);

/// `octaves` layers of Noise. One unit of u or v holds `cells` cells and repeats after 1.
double Fractal(double u, double v, int cells, int octaves, int seed);

/// The same without repeating, for pictures seen once.
double Clouds(double x, double y, int octaves, int seed);

/// Ridges: bright where the noise crosses its middle. Repeats after 1 as Fractal does.
double Ridges(double u, double v, int cells, int octaves, int seed);

/// The nearest of scattered points, one in each cell, repeating after 1.
struct Pebble {
  double nearest;  // distance to the nearest point, in cells
  double second;   // distance to the next nearest
  double id;       // a fraction that tells pebbles apart
};
Pebble Pebbles(double u, double v, int cells, int seed);

}  // namespace art
