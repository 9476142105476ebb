#include "level/AnimatedTextures.h"

#include <algorithm>

namespace AnimatedTextures {

bool IsAnimatedTexture(const std::string& Name) {
  return std::ranges::find(AnimationFrames, Name) != AnimationFrames.end();
}

std::string NextAnimationFrame(const std::string& Name) {
  const auto* found = std::ranges::find(AnimationFrames, Name);
  if (found == AnimationFrames.end()) return {};
  ++found;
  return found == AnimationFrames.end() ? AnimationFrames.front() : *found;
}

}  // namespace AnimatedTextures
