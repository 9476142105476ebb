// What one frame records: a list of clears and draws, each with the states in force at its call.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/resources.h"
#include "platform/values.h"

enum class Primitive : uint8_t { PointList, TriangleList, TriangleStrip };
enum class Blend : uint8_t { Zero, One, SourceAlpha, InverseSourceAlpha };
enum class Filter : uint8_t { Point, Linear };

/// Render and texture-stage states, with the device's defaults.
struct DeviceStates {
  bool lighting = true;
  bool depthTest = false;
  bool depthWrite = true;
  bool alphaBlend = false;
  Blend sourceBlend = Blend::One;
  Blend destinationBlend = Blend::Zero;
  bool multisample = false;
  bool pointSprites = false;
  bool pointScaling = false;
  float pointSize = 1.0F;
  Filter magnify = Filter::Point;
  Filter minify = Filter::Point;
  bool operator==(const DeviceStates&) const = default;
};

struct Camera {
  Matrix4 view, projection;
  bool operator==(const Camera&) const = default;
};

struct Command {
  enum class Kind : uint8_t { Clear, Draw } kind = Kind::Draw;
  Primitive primitive = Primitive::TriangleList;
  VertexFormat format = VertexFormat::World;
  uint32_t colour = 0;  ///< Clear: 0xAARRGGBB
  float depth = 1.0F;   ///< Clear
  uint32_t firstVertex = 0;
  uint32_t vertexCount = 0;
  const VertexBufferObject* buffer = nullptr;
  const TextureObject* texture = nullptr;  ///< null: no texture
  uint32_t world = 0;                      ///< index into CommandList::worlds
  uint32_t camera = 0;                     ///< index into CommandList::cameras
  uint32_t states = 0;                     ///< index into CommandList::states
};

/// One recorded frame. It keeps everything alive that its commands point to.
struct CommandList {
  std::vector<Command> commands;
  std::vector<Matrix4> worlds;
  std::vector<Camera> cameras;
  std::vector<DeviceStates> states;
  std::vector<std::shared_ptr<const void>> resources;
};

/// Draws recorded frames.
class Executor {
 public:
  virtual ~Executor() = default;
  virtual void Execute(const CommandList& frame) = 0;
  /// Whether frames shall hold what the camera cannot see, too.
  virtual bool NeedsUnseen() const { return true; }
};
