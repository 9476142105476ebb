#include "platform/gl/batched_executor.h"

namespace gl {
namespace {

// Small enough for a cache to hold between placing the vertices and drawing them.
constexpr size_t kPendingVertices = 1U << 14;

// How far ahead of its test a buffer's bounding box is fetched.
constexpr size_t kCommandsAhead = 24;

}  // namespace

BatchedExecutor::BatchedExecutor(const TargetSettings& settings)
    : pipeline_(settings),
      pending_(std::make_unique_for_overwrite<StreamVertex[]>(kPendingVertices)),
      pendingCapacity_(kPendingVertices) {}

void BatchedExecutor::Execute(const CommandList& frame) {
  if (memory_.Holds(frame)) return;
  pictureRead_ = false;
  try {
    DrawFrame(frame);
  } catch (...) {
    memory_.Forget();
    pendingCount_ = 0;
    throw;
  }
  memory_.Remember(frame);
}

Image BatchedExecutor::ReadPicture() {
  if (!pictureRead_) picture_ = pipeline_.ReadPicture();
  pictureRead_ = true;
  return picture_;
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
  const size_t count = frame.commands.size();
  for (size_t i = 0; i < count; ++i) {
    const Command& command = frame.commands[i];
    __builtin_prefetch(frame.commands[std::min(i + kCommandsAhead, count - 1)].buffer);
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
  Flush();
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
