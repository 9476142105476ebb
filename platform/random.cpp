#include "platform/random.h"

#include <chrono>
#include <cstdint>

namespace random_numbers {
namespace {

/// A counter whose values are scrambled: every state is as good as any other, so reseeding often
/// costs nothing in quality.
class CounterSource : public Source {
 public:
  float Next() override {
    state_ += 0x9E3779B97F4A7C15U;
    uint64_t bits = state_;
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31;
    // 24 bits fill a Single exactly: 1 is never reached.
    return static_cast<float>(bits >> 40) * 0x1p-24F;
  }
  void Reseed() override {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    // Added, not assigned: two calls within one tick of the clock still differ.
    state_ += static_cast<uint64_t>(now);
  }

 private:
  uint64_t state_ = 0;
};

Source*& Named() {
  static Source* source = nullptr;
  return source;
}

Source& Current() {
  static CounterSource own;
  return Named() != nullptr ? *Named() : own;
}

}  // namespace

void Use(Source* source) { Named() = source; }
float Next() { return Current().Next(); }
void Reseed() { Current().Reseed(); }

}  // namespace random_numbers
