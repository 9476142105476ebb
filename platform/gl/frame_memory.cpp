#include "platform/gl/frame_memory.h"

#include <cstring>

namespace gl {
namespace {

/// Bit for bit: quicker than comparing numbers, and a difference only costs a drawing.
template <typename T>
bool SameBytes(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0);
}

/// Points drawn from memory come in a fresh buffer each frame, so contents count as well.
bool SameVertices(const VertexBufferObject* a, const VertexBufferObject* b) {
  if (a == b) return true;
  if (a == nullptr || b == nullptr || a->Format() != b->Format()) return false;
  if (a->ByteCount() != b->ByteCount()) return false;
  const auto left = a->Vertices<std::byte>(), right = b->Vertices<std::byte>();
  return left.empty() || std::memcmp(left.data(), right.data(), left.size()) == 0;
}

bool SameCommand(const Command& a, const Command& b) {
  return a.kind == b.kind && a.primitive == b.primitive && a.format == b.format &&
         a.colour == b.colour && a.depth == b.depth && a.firstVertex == b.firstVertex &&
         a.vertexCount == b.vertexCount && a.texture == b.texture && a.world == b.world &&
         a.camera == b.camera && a.states == b.states && SameVertices(a.buffer, b.buffer);
}

}  // namespace

bool FrameMemory::StandsStill(const CommandList& frame) const {
  return frame.commands.size() == commandCount_ && frame.cameras == last_.cameras &&
         frame.states == last_.states && SameBytes(frame.worlds, last_.worlds);
}

bool FrameMemory::Holds(const CommandList& frame) const {
  // The remembered frame keeps its resources alive, so equal addresses mean equal objects.
  return whole_ && commandCount_ > 0 && frame.commands[0].kind == Command::Kind::Clear &&
         StandsStill(frame) && std::ranges::equal(frame.commands, last_.commands, SameCommand);
}

void FrameMemory::Remember(const CommandList& frame) {
  if (StandsStill(frame)) {
    last_.commands = frame.commands;
    last_.resources = frame.resources;
    whole_ = true;
    return;
  }
  if (whole_) last_.resources.clear();
  whole_ = false;
  commandCount_ = frame.commands.size();
  last_.cameras = frame.cameras;
  last_.states = frame.states;
  last_.worlds = frame.worlds;
}

}  // namespace gl
