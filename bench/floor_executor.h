// What a frame costs at least: its visible faces drawn from buffers that OpenGL holds already.
#pragma once

#include <memory>
#include <vector>

#include "bench/static_vertices.h"
#include "platform/gl/pipeline.h"
#include "platform/gl/texture_arrays.h"

namespace bench {

class FloorExecutor {
 public:
  /// Throws PlatformError.
  explicit FloorExecutor(const gl::TargetSettings& settings) : pipeline_(settings) {}

  /// Takes frames of triangles, each with one clear at its start, in place of those before.
  void Prepare(std::vector<CommandList> frames);
  /// Draws the frame with this number, from 0.
  void Draw(size_t frame);
  const Image& ReadPicture() { return pipeline_.ReadPicture(); }

 private:
  /// Consecutive draws that need nothing set between them.
  struct Batch {
    gl::DrawMode mode;
    GLuint array = 0;  ///< 0: no draw with a texture yet
    size_t first = 0, count = 0;
  };
  struct Frame {
    CommandList list;
    std::vector<Batch> batches;
    std::unique_ptr<StaticVertices> vertices;
  };

  void UploadTextures(const std::vector<CommandList>& frames);
  Frame Build(CommandList list);

  gl::Pipeline pipeline_;
  std::unique_ptr<gl::TextureArrays> textures_;
  std::vector<Frame> frames_;
};

}  // namespace bench
