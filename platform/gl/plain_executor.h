// One OpenGL draw per recorded draw: slow, simple, the oracle for the batched scheme.
#pragma once

#include <unordered_map>

#include "platform/gl/pipeline.h"
#include "platform/gl/refused_textures.h"
#include "platform/gl/vertex_stream.h"

namespace gl {

class PlainExecutor : public PictureExecutor {
 public:
  /// Throws PlatformError.
  explicit PlainExecutor(const TargetSettings& settings) : pipeline_(settings) {}

  void Execute(const CommandList& frame) override;
  const Image& ReadPicture() override { return pipeline_.ReadPicture(); }

 private:
  struct StoredTexture {
    TextureName name;
    uint64_t lastFrame = 0;
  };
  void Draw(const Command& draw, const Matrix4& world);
  /// Whether there is anything to draw with.
  bool Bind(const TextureObject& texture);

  Pipeline pipeline_;
  VertexStream stream_;
  std::unordered_map<uint64_t, StoredTexture> textures_;  // by TextureObject::Id
  RefusedTextures refused_;
  std::vector<StreamVertex> vertices_;
};

}  // namespace gl
