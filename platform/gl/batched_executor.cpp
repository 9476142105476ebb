#include "platform/gl/batched_executor.h"

namespace gl {
namespace {

// Whole triangles. Small: a software renderer goes back to the start of a piece for each triangle
// that it has to clip.
constexpr size_t kPendingVertices = 510;

// How far ahead of its test a buffer's bounding box is fetched.
constexpr size_t kCommandsAhead = 24;

}  // namespace

BatchedExecutor::BatchedExecutor(const TargetSettings& settings)
    : pipeline_(settings),
      pending_(std::make_unique_for_overwrite<StreamVertex[]>(kPendingVertices)),
      pendingCapacity_(kPendingVertices) {}

void BatchedExecutor::Execute(const CommandList& frame) {
  if (memory_.Holds(frame)) return;
  picture_ = nullptr;
  ++framesDrawn_;
  try {
    DrawFrame(frame);
  } catch (...) {
    memory_.Forget();
    opening_.Forget();
    pendingCount_ = 0;
    throw;
  }
  memory_.Remember(frame);
}

const Image& BatchedExecutor::ReadPicture() {
  if (picture_ == nullptr) picture_ = &pipeline_.ReadPicture();
  return *picture_;
}

void BatchedExecutor::DrawFrame(const CommandList& frame) {
  pipeline_.BeginFrame(frame);
  stream_.Bind();
  textures_.BeginFrame();
  lastTexture_ = nullptr;
  lastPlace_ = {};
  seen_ = {};
  batch_ = {};
  if (!frame.cameras.empty()) UseCamera(frame, 0);
  DrawCommands(frame, Open(frame), frame.commands.size());
  Flush();
}

size_t BatchedExecutor::Open(const CommandList& frame) {
  const size_t length = FrameOpening::LengthIn(frame);
  const bool repeats = opening_.Repeats(frame, length);
  if (repeats && openingKept_) {
    pipeline_.Reopen();
    return length;
  }
  DrawCommands(frame, 0, length);
  Flush();
  // What comes a second time is likely to come again.
  if (repeats) pipeline_.KeepOpening();
  openingKept_ = repeats;
  return length;
}

void BatchedExecutor::DrawCommands(const CommandList& frame, size_t first, size_t end) {
  for (size_t i = first; i < end; ++i) {
    const Command& command = frame.commands[i];
    __builtin_prefetch(frame.commands[std::min(i + kCommandsAhead, end - 1)].buffer);
    if (command.kind == Command::Kind::Clear) {
      Flush();
      pipeline_.Clear(command);
      continue;
    }
    // A camera set again as it was must not split batches.
    if (command.camera != camera_ && frame.cameras[command.camera] != frame.cameras[camera_]) {
      UseCamera(frame, command.camera);
    }
    if (Visible(frame, command)) Collect(frame, command);
  }
}

void BatchedExecutor::UseCamera(const CommandList& frame, uint32_t camera) {
  camera_ = camera;
  frustum_ = Frustum(frame.cameras[camera]);
  seen_ = {};
}

bool BatchedExecutor::Visible(const CommandList& frame, const Command& draw) {
  if (draw.buffer == seen_.buffer && draw.world == seen_.world) return seen_.visible;
  // A point sprite reaches beyond the box around its centre, and screen vertices know no camera.
  const bool tested = draw.primitive != Primitive::PointList && draw.format != VertexFormat::Screen;
  seen_ = {draw.buffer, draw.world,
           !tested || frustum_.MaySee(*draw.buffer, frame.worlds[draw.world])};
  return seen_.visible;
}

void BatchedExecutor::Collect(const CommandList& frame, const Command& draw) {
  if (draw.texture != lastTexture_) {
    lastTexture_ = draw.texture;
    lastPlace_ = draw.texture != nullptr ? textures_.Find(*draw.texture) : TextureArrays::Place();
  }
  DrawMode mode = ModeOf(draw);
  mode.camera = camera_;
  const bool otherArray = lastPlace_.array != batch_.array && lastPlace_.array != 0;
  if (mode != batch_.mode || (otherArray && batch_.array != 0)) {
    Flush();
    batch_ = {mode, 0};
  }
  if (lastPlace_.array != 0) batch_.array = lastPlace_.array;
  const size_t count = ExpandedCount(draw);
  PlaceExpanded(draw, frame.worlds[draw.world], lastPlace_.layer, Room(count), scratch_);
  pendingCount_ += count;
}

StreamVertex* BatchedExecutor::Room(size_t count) {
  if (pendingCount_ + count > pendingCapacity_) {
    Flush();
    if (count > pendingCapacity_) {
      pending_ = std::make_unique_for_overwrite<StreamVertex[]>(count);
      pendingCapacity_ = count;
    }
  }
  return pending_.get() + pendingCount_;
}

void BatchedExecutor::Flush() {
  if (pendingCount_ == 0) return;
  pipeline_.Prepare(batch_.mode);
  if (batch_.array != 0) glBindTexture(GL_TEXTURE_2D_ARRAY, batch_.array);
  stream_.Draw(batch_.mode.shape == Shape::Points ? GL_POINTS : GL_TRIANGLES,
               {pending_.get(), pendingCount_});
  pendingCount_ = 0;
}

}  // namespace gl
