// Random numbers that are the same with every compiler and library.
#pragma once

#include <cstdint>
#include <random>

namespace bench {

/// The generator is the standard's; how its numbers become ranges is not left to the library.
class Dice {
 public:
  explicit Dice(uint32_t seed) : random_(seed) {}
  /// Both ends are thrown, too.
  int Whole(int least, int most) {
    const auto choices = static_cast<uint32_t>(most - least + 1);
    return least + static_cast<int>(static_cast<uint32_t>(random_()) % choices);
  }
  float Single(int least, int most) { return static_cast<float>(Whole(least, most)); }
  /// In steps of a half.
  float Half(int least, int most) { return Single(2 * least, 2 * most) / 2; }
  uint8_t Byte(int least, int most) { return static_cast<uint8_t>(Whole(least, most)); }
  bool Once(int inSoMany) { return Whole(1, inSoMany) == 1; }

 private:
  std::mt19937 random_;
};

}  // namespace bench
