#include "drive/words.h"

#include <cstdio>

namespace drive {
namespace {

const char* VerbFor(Ending ending) {
  switch (ending) {
    case Ending::Wins:
      return "wins";
    case Ending::Explodes:
      return "explodes";
    case Ending::Falls:
      return "falls";
    case Ending::None:
      break;
  }
  return "ends";
}

}  // namespace

std::string Seconds(int frames) {
  constexpr double kSecondsPerFrame = 0.04;
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f s", frames * kSecondsPerFrame);
  return text.data();
}

std::string HowItEnds(Ending ending, int frames) {
  return std::string(VerbFor(ending)).append(" after ").append(Seconds(frames));
}

std::string WithStars(size_t taken, size_t all) {
  if (all == 0) return {};
  std::string words = " with " + std::to_string(taken);
  return words.append(" of ").append(std::to_string(all)).append(all == 1 ? " star" : " stars");
}

}  // namespace drive
