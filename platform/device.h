// The fixed-function 3D device. Its calls only record; Present hands the frame to an executor.
#pragma once

#include <memory>
#include <span>

#include "platform/commands.h"
#include "platform/error.h"
#include "platform/frustum.h"

enum class Transform : uint8_t { World, View, Projection };
enum class RenderState : uint8_t {
  Lighting,
  DepthTest,
  DepthWrite,
  AlphaBlend,
  MultisampleAntialias,
  PointSprite,
  PointScale
};
enum class BlendState : uint8_t { Source, Destination };
enum class StageState : uint8_t { MagFilter, MinFilter };

/// Lighting is never on, so a material changes nothing visible; it is kept for what reads it back.
struct Material {
  ColourValue diffuse, ambient;
  bool operator==(const Material&) const = default;
};

class Device {
 public:
  /// `executor` draws what Present hands over; null drops it, and nothing can be seen then.
  explicit Device(std::unique_ptr<Executor> executor);

  void Clear(uint32_t colour, float depth);
  void BeginScene();
  /// Throws PlatformError when no scene was begun.
  void EndScene();
  void Present();

  void SetRenderState(RenderState state, bool on);
  void SetBlend(BlendState state, Blend blend);
  /// The size arrives as the bits of a float, as every float-valued state does.
  void SetPointSize(int32_t floatBits);
  void SetTextureStageState(StageState state, Filter filter);
  void SetTransform(Transform transform, const Matrix4& matrix);
  const Matrix4& GetTransform(Transform transform) const;
  /// False when nothing of the box from `corner` by `size`, in world space, can reach a pixel under
  /// the present view and projection: then it need not be drawn. Always true where the executor
  /// wants everything.
  bool MaySee(const Vector3& corner, const Vector3& size) {
    if (needsUnseen_) return true;
    if (!executor_) return false;
    if (frustumOld_) RenewFrustum();
    return frustum_.MaySee(corner, size);
  }
  void SetVertexFormat(VertexFormat format) { format_ = format; }
  void SetTexture(const TexturePtr& texture);
  void SetMaterial(const Material& material) { material_ = material; }

  VertexBufferPtr CreateVertexBuffer(std::span<const Vertex> vertices) const;
  VertexBufferPtr CreateVertexBuffer(std::span<const ScreenVertex> vertices) const;
  void SetStreamSource(const VertexBufferPtr& buffer, size_t stride);
  /// Draws `primitiveCount` points or triangles of stream 0 from vertex `first`. Throws
  /// PlatformError when the stream does not hold them or is of another vertex format.
  void DrawPrimitive(Primitive primitive, uint32_t first, uint32_t primitiveCount);
  /// Draws from memory; the points are copied.
  void DrawPrimitiveUP(std::span<const PointVertex> points);

  const DeviceStates& States() const { return states_; }
  const Material& CurrentMaterial() const { return material_; }

 private:
  void StartFrame();
  void RenewFrustum();
  void Record(Primitive primitive, const VertexBufferObject& buffer, uint32_t first,
              uint32_t count);
  template <typename T>
  void KeepAlive(const std::shared_ptr<const T>& resource);

  std::unique_ptr<Executor> executor_;
  CommandList frame_;
  DeviceStates states_;
  Material material_;
  Matrix4 world_, view_, projection_;
  Frustum frustum_;
  VertexFormat format_ = VertexFormat::World;
  // Kept alive by the frame's resources.
  const TextureObject* texture_ = nullptr;
  const VertexBufferObject* stream_ = nullptr;
  uint64_t frameNumber_ = 0;
  bool worldChanged_ = true, cameraChanged_ = true, statesChanged_ = true;
  bool frustumOld_ = true;
  bool inScene_ = false;
  bool needsUnseen_;
};
