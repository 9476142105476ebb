// The usual way to draw a track: for each block its matrix, for each face a texture and a draw.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <vector>

#include "bench/static_vertices.h"
#include "platform/gl/pipeline.h"

namespace bench {

/// Draws all of the document's blocks from one buffer with a unit box, wherever the camera looks.
/// All boxes wear their textures unstretched, so the picture is not quite the other schemes'.
class NaiveExecutor : public gl::PictureExecutor {
 public:
  /// Throws PlatformError.
  explicit NaiveExecutor(const gl::TargetSettings& settings);

  /// Takes the document's blocks and uploads their textures.
  void Load();
  /// Draws a frame of a document without pieces, then the blocks.
  void Execute(const CommandList& emptyFrame) override;
  const Image& ReadPicture() override { return pipeline_.ReadPicture(); }

 private:
  struct Block {
    Matrix4 world;
    std::array<GLuint, 4> textures;
  };
  GLuint Uploaded(const TextureObject& texture);
  void DrawBackdrop(const Command& draw);
  void DrawBlocks(uint32_t states);

  gl::Pipeline pipeline_;
  gl::Program program_{gl::Shape::Triangles};
  gl::VertexStream stream_;
  StaticVertices box_;
  std::map<uint64_t, gl::TextureName> textures_;  // by TextureObject::Id
  std::vector<Block> blocks_;
  std::vector<gl::StreamVertex> vertices_;
  CommandList frame_;
};

}  // namespace bench
