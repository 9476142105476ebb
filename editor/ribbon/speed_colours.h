// The colours of a ribbon: how fast the car went, by families that tell drives apart.
#pragma once

#include <array>
#include <cstdint>

namespace ribbon {

/// Colours by speed, slowest first; between two stops they flow.
struct Palette {
  struct Stop {
    double speed;     ///< world units per frame
    uint32_t colour;  ///< 0xRRGGBB
  };
  std::array<Stop, 6> stops;
};

/// The user's own drive: blue, cyan, green, yellow at the car's top speed, red-orange beyond it.
inline constexpr Palette kOwnDrive = {{{{0.0, 0x2340C8},
                                        {0.16, 0x14A5F0},
                                        {0.32, 0x1FC776},
                                        {0.46, 0x86DC22},
                                        {0.6, 0xFFE22E},
                                        {1.0, 0xFF3F1A}}}};
/// A drive that was found: violet, magenta, pink, pale pink.
inline constexpr Palette kFoundDrive = {{{{0.0, 0x5B21B6},
                                          {0.16, 0x8127E0},
                                          {0.32, 0xB026E0},
                                          {0.46, 0xE030D0},
                                          {0.6, 0xFF5CCB},
                                          {1.0, 0xFFC2EA}}}};

/// 0xRRGGBB.
uint32_t SpeedColour(const Palette& palette, double speed);
/// From colour `a` (0) to colour `b` (1), each channel for itself.
uint32_t MixColours(uint32_t a, uint32_t b, double share);
/// The colour with an alpha from 0 to 255.
constexpr uint32_t WithAlpha(uint32_t colour, uint32_t alpha) {
  return (colour & 0xFFFFFFU) | alpha << 24;
}

}  // namespace ribbon
