#include "platform/gl/frame_opening.h"

#include <algorithm>

namespace gl {

size_t FrameOpening::LengthIn(const CommandList& frame) {
  const std::vector<Command>& commands = frame.commands;
  if (commands.empty() || commands[0].kind != Command::Kind::Clear) return 0;
  const auto end = std::find_if(commands.begin() + 1, commands.end(), [&](const Command& command) {
    return command.kind != Command::Kind::Draw || command.format != VertexFormat::Screen ||
           command.primitive == Primitive::PointList || frame.states[command.states].depthWrite;
  });
  const auto length = static_cast<size_t>(end - commands.begin());
  return length > 1 ? length : 0;
}

bool FrameOpening::Repeats(const CommandList& frame, size_t length) {
  const bool same =
      length == last_.size() && std::equal(last_.begin(), last_.end(), frame.commands.begin(),
                                           [&](const Entry& entry, const Command& command) {
                                             return IsSame(frame, command, entry);
                                           });
  if (same) return length > 0;
  last_.clear();
  for (size_t i = 0; i < length; ++i) last_.push_back(EntryOf(frame, frame.commands[i]));
  return false;
}

FrameOpening::Entry FrameOpening::EntryOf(const CommandList& frame, const Command& command) {
  Entry entry{command, {}, nullptr, nullptr};
  if (command.kind == Command::Kind::Draw) entry.states = frame.states[command.states];
  if (command.buffer != nullptr) entry.buffer = command.buffer->shared_from_this();
  if (command.texture != nullptr) entry.texture = command.texture->shared_from_this();
  return entry;
}

bool FrameOpening::IsSame(const CommandList& frame, const Command& command, const Entry& entry) {
  const Command& last = entry.command;
  return command.kind == last.kind && command.primitive == last.primitive &&
         command.format == last.format && command.colour == last.colour &&
         command.depth == last.depth && command.firstVertex == last.firstVertex &&
         command.vertexCount == last.vertexCount && command.buffer == last.buffer &&
         command.texture == last.texture &&
         (command.kind == Command::Kind::Clear || frame.states[command.states] == entry.states);
}

}  // namespace gl
