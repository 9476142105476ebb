// The program's number types and the rounding between them. Expressions are evaluated in
// double; these functions mark the places where a value is stored in a smaller type.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

/// Rounds to single precision. Throws std::overflow_error when a finite value does not fit.
inline float ToSingle(double value) {
  const auto single = static_cast<float>(value);
  if (std::isinf(single) && !std::isinf(value)) throw std::overflow_error("Overflow");
  return single;
}

/// Nearest whole number, halves to even. Throws std::overflow_error outside the type (or NaN).
template <typename Whole>
Whole ToWhole(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Whole>::max()))) {
    throw std::overflow_error("Overflow");
  }
  return static_cast<Whole>(rounded);
}

inline int32_t ToLong(double value) { return ToWhole<int32_t>(value); }
inline int16_t ToInteger(double value) { return ToWhole<int16_t>(value); }
inline uint8_t ToByte(double value) { return ToWhole<uint8_t>(value); }

/// Rounds to three decimal places, halves to even.
inline double RoundTo3(double value) { return std::nearbyint(value * 1000.0) / 1000.0; }
