// What both schemes share: target, shaders and states.
#pragma once

#include "platform/gl/program.h"
#include "platform/gl/target.h"

namespace gl {

/// The states of a draw that are not its texture and not its vertices: indices into the frame's
/// tables, and the two ways to read vertices.
struct DrawMode {
  uint32_t camera = 0, states = 0;
  Shape shape = Shape::Triangles;
  bool screen = false;
  bool operator==(const DrawMode&) const = default;
};

/// The mode of a recorded draw.
DrawMode ModeOf(const Command& draw);

class Pipeline {
 public:
  /// Throws PlatformError.
  explicit Pipeline(const TargetSettings& settings);

  /// Takes the context over, whatever its state. `frame` must stay until the next call.
  void BeginFrame(const CommandList& frame);
  /// Colour and depth, whatever the states say.
  void Clear(const Command& clear);
  /// Keeps the colours drawn so far; Reopen brings them back over a clear of the depth.
  void KeepOpening() { target_.Keep(); }
  void Reopen(const Command& clear);
  /// Sets everything that the next draws in this mode need.
  void Prepare(const DrawMode& mode);
  const Image& ReadPicture() { return target_.Read(); }

 private:
  void SetStates(const DeviceStates& states) const;
  void SetProgram(const DrawMode& mode) const;
  PointSizing SizingOf(const DeviceStates& states, bool screen) const;

  TargetSettings settings_;
  Target target_;
  Program triangles_, points_;
  SamplerName sampler_;
  const CommandList* frame_ = nullptr;
  DrawMode mode_;
  bool modeSet_ = false;
};

}  // namespace gl
