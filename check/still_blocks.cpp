#include "check/still_blocks.h"

#include "level/clsblock.h"

namespace check {

bool Moves(const drive::FrozenBlock& block) {
  return block.kind == clsblock::FallingBlock || block.kind == clsblock::JumpPad;
}

StillBlocks::StillBlocks(const drive::FrozenTrack& track) : blocks_(track.Blocks()) {
  std::vector<drive::Reach> reaches;
  reaches.reserve(blocks_.size());
  for (size_t i = 0; i < blocks_.size(); ++i) {
    if (Moves(blocks_[i])) continue;
    const auto& [at, size] = blocks_[i].box;
    reaches.push_back({at.x, at.x + size.x, at.z, at.z + size.z, static_cast<int32_t>(i)});
  }
  index_ = drive::DepthIndex(reaches);
}

}  // namespace check
