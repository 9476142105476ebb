// Draws a frame in as few OpenGL draws as its order allows.
#pragma once

#include "platform/frustum.h"
#include "platform/gl/frame_memory.h"
#include "platform/gl/frame_opening.h"
#include "platform/gl/pipeline.h"
#include "platform/gl/texture_arrays.h"
#include "platform/gl/vertex_stream.h"

namespace gl {

/// Leaves out what the camera cannot see and what was drawn the frame before; the rest is placed in
/// the world here and collected, in the order of the calls, until something that a single draw call
/// cannot express changes.
class BatchedExecutor : public PictureExecutor {
 public:
  /// Throws PlatformError.
  explicit BatchedExecutor(const TargetSettings& settings);

  void Execute(const CommandList& frame) override;
  bool NeedsUnseen() const override { return false; }
  const Image& ReadPicture() override;

 private:
  /// What all draws of a batch have in common.
  struct Batch {
    DrawMode mode;
    GLuint array = 0;  ///< 0: no draw with a texture yet
  };
  /// The draws of one object follow each other: what is seen of one is seen of all.
  struct Seen {
    const VertexBufferObject* buffer = nullptr;
    uint32_t world = 0;
    bool visible = false;
  };

  void DrawFrame(const CommandList& frame);
  /// Draws how the frame opens; returns the number of the command after that.
  size_t Open(const CommandList& frame);
  void DrawCommands(const CommandList& frame, size_t first, size_t end);
  void UseCamera(const CommandList& frame, uint32_t camera);
  bool Visible(const CommandList& frame, const Command& draw);
  void Collect(const CommandList& frame, const Command& draw);
  StreamVertex* Room(size_t count);
  void Flush();

  Pipeline pipeline_;
  VertexStream stream_;
  TextureArrays textures_;
  FrameMemory memory_;
  FrameOpening opening_;
  bool openingKept_ = false;
  Frustum frustum_;
  uint32_t camera_ = 0;
  Seen seen_;
  Batch batch_;
  const TextureObject* lastTexture_ = nullptr;
  TextureArrays::Place lastPlace_;
  std::unique_ptr<StreamVertex[]> pending_;
  size_t pendingCount_ = 0, pendingCapacity_;
  std::vector<StreamVertex> scratch_;
  const Image* picture_ = nullptr;  ///< once this frame has been read
};

}  // namespace gl
