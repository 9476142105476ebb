#include "platform/device.h"

#include <atomic>
#include <bit>

#include "platform/d3dx_maths.h"

namespace {

uint32_t VerticesOf(Primitive primitive, uint32_t count) {
  switch (primitive) {
    case Primitive::PointList:
      return count;
    case Primitive::TriangleList:
      return 3 * count;
    case Primitive::TriangleStrip:
      return count + 2;
  }
  return 0;
}

}  // namespace

Device::Device(std::unique_ptr<Executor> executor)
    : executor_(std::move(executor)),
      world_(d3dx::Identity()),
      view_(d3dx::Identity()),
      projection_(d3dx::Identity()),
      needsUnseen_(executor_ && executor_->NeedsUnseen()) {
  StartFrame();
}

void Device::StartFrame() {
  static std::atomic<uint64_t> next{1};
  frameNumber_ = next++;
  // What was set stays set, so it must outlive the frame that set it.
  const TexturePtr texture = texture_ ? texture_->shared_from_this() : nullptr;
  const VertexBufferPtr stream = stream_ ? stream_->shared_from_this() : nullptr;
  frame_.commands.clear();
  frame_.worlds.clear();
  frame_.cameras.clear();
  frame_.states.clear();
  frame_.resources.clear();
  worldChanged_ = cameraChanged_ = statesChanged_ = true;
  KeepAlive(texture);
  KeepAlive(stream);
}

template <typename T>
void Device::KeepAlive(const std::shared_ptr<const T>& resource) {
  if (resource && resource->MarkFor(frameNumber_)) frame_.resources.push_back(resource);
}

void Device::Clear(uint32_t colour, float depth) {
  Command command;
  command.kind = Command::Kind::Clear;
  command.colour = colour;
  command.depth = depth;
  frame_.commands.push_back(command);
}

void Device::BeginScene() { inScene_ = true; }

void Device::EndScene() {
  if (!inScene_) throw PlatformError("EndScene without BeginScene");
  inScene_ = false;
}

void Device::Present() {
  try {
    if (executor_) executor_->Execute(frame_);
  } catch (...) {
    StartFrame();  // the next frame must not begin with what this one could not draw
    throw;
  }
  StartFrame();
}

void Device::SetRenderState(RenderState state, bool on) {
  switch (state) {
    case RenderState::Lighting:
      states_.lighting = on;
      break;
    case RenderState::DepthTest:
      states_.depthTest = on;
      break;
    case RenderState::DepthWrite:
      states_.depthWrite = on;
      break;
    case RenderState::AlphaBlend:
      states_.alphaBlend = on;
      break;
    case RenderState::MultisampleAntialias:
      states_.multisample = on;
      break;
    case RenderState::PointSprite:
      states_.pointSprites = on;
      break;
    case RenderState::PointScale:
      states_.pointScaling = on;
      break;
  }
  statesChanged_ = true;
}

void Device::SetBlend(BlendState state, Blend blend) {
  (state == BlendState::Source ? states_.sourceBlend : states_.destinationBlend) = blend;
  statesChanged_ = true;
}

void Device::SetPointSize(int32_t floatBits) {
  states_.pointSize = std::bit_cast<float>(floatBits);
  statesChanged_ = true;
}

void Device::SetTextureStageState(StageState state, Filter filter) {
  (state == StageState::MagFilter ? states_.magnify : states_.minify) = filter;
  statesChanged_ = true;
}

void Device::SetTransform(Transform transform, const Matrix4& matrix) {
  switch (transform) {
    case Transform::World:
      world_ = matrix;
      worldChanged_ = true;
      return;
    case Transform::View:
      view_ = matrix;
      break;
    case Transform::Projection:
      projection_ = matrix;
      break;
  }
  cameraChanged_ = frustumOld_ = true;
}

void Device::RenewFrustum() {
  frustum_ = Frustum(Camera{view_, projection_});
  frustumOld_ = false;
}

const Matrix4& Device::GetTransform(Transform transform) const {
  switch (transform) {
    case Transform::View:
      return view_;
    case Transform::Projection:
      return projection_;
    case Transform::World:
      break;
  }
  return world_;
}

void Device::SetTexture(const TexturePtr& texture) {
  KeepAlive(texture);
  texture_ = texture.get();
}

VertexBufferPtr Device::CreateVertexBuffer(std::span<const Vertex> vertices) const {
  return std::make_shared<VertexBufferObject>(vertices);
}

VertexBufferPtr Device::CreateVertexBuffer(std::span<const ScreenVertex> vertices) const {
  return std::make_shared<VertexBufferObject>(vertices);
}

void Device::SetStreamSource(const VertexBufferPtr& buffer, size_t stride) {
  if (buffer && stride != static_cast<size_t>(buffer->Format())) {
    throw PlatformError("stream stride differs from the buffer's vertex");
  }
  KeepAlive(buffer);
  stream_ = buffer.get();
}

void Device::DrawPrimitive(Primitive primitive, uint32_t first, uint32_t primitiveCount) {
  const uint32_t count = VerticesOf(primitive, primitiveCount);
  if (stream_ == nullptr) throw PlatformError("draw without a vertex buffer");
  if (stream_->Format() != format_ || first + count > stream_->VertexCount()) {
    throw PlatformError("draw past the end of the vertex buffer");
  }
  Record(primitive, *stream_, first, count);
}

void Device::DrawPrimitiveUP(std::span<const PointVertex> points) {
  const VertexBufferPtr buffer = std::make_shared<VertexBufferObject>(points);
  KeepAlive(buffer);
  Record(Primitive::PointList, *buffer, 0, static_cast<uint32_t>(points.size()));
}

void Device::Record(Primitive primitive, const VertexBufferObject& buffer, uint32_t first,
                    uint32_t count) {
  if (!inScene_) throw PlatformError("draw outside a scene");
  if (worldChanged_) frame_.worlds.push_back(world_);
  if (cameraChanged_) frame_.cameras.push_back({view_, projection_});
  if (statesChanged_ && (frame_.states.empty() || frame_.states.back() != states_)) {
    frame_.states.push_back(states_);
  }
  worldChanged_ = cameraChanged_ = statesChanged_ = false;

  Command command;
  command.primitive = primitive;
  command.format = buffer.Format();
  command.firstVertex = first;
  command.vertexCount = count;
  command.buffer = &buffer;
  command.texture = texture_;
  command.world = static_cast<uint32_t>(frame_.worlds.size() - 1);
  command.camera = static_cast<uint32_t>(frame_.cameras.size() - 1);
  command.states = static_cast<uint32_t>(frame_.states.size() - 1);
  frame_.commands.push_back(command);
}
