// The one exception type of the platform layer.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

/// A call of the device, its loaders or the keyboard failed; what() is the device's own text and
/// code() its error number, 0 where it has none.
class PlatformError : public std::runtime_error {
 public:
  explicit PlatformError(const std::string& text, uint32_t code = 0)
      : std::runtime_error(text), code_(code) {}
  uint32_t code() const { return code_; }

 private:
  uint32_t code_;
};

/// The adapter has no device of the wanted type.
inline constexpr uint32_t kErrorNotAvailable = 0x8876086A;
