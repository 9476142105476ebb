#include "platform/gl/plain_executor.h"

#include "platform/gl/texture_upload.h"

namespace gl {
namespace {

GLenum ModeName(Primitive primitive) {
  switch (primitive) {
    case Primitive::PointList:
      return GL_POINTS;
    case Primitive::TriangleList:
      return GL_TRIANGLES;
    case Primitive::TriangleStrip:
      return GL_TRIANGLE_STRIP;
  }
  return GL_TRIANGLES;
}

}  // namespace

void PlainExecutor::Execute(const CommandList& frame) {
  ++framesDrawn_;
  std::erase_if(textures_, [this](const auto& item) {
    return item.second.lastFrame + kFramesKept < framesDrawn_;
  });
  pipeline_.BeginFrame(frame);
  stream_.Bind();
  for (const Command& command : frame.commands) {
    if (command.kind == Command::Kind::Clear) {
      pipeline_.Clear(command);
    } else {
      Draw(command, frame.worlds[command.world]);
    }
  }
}

void PlainExecutor::Draw(const Command& draw, const Matrix4& world) {
  pipeline_.Prepare(ModeOf(draw));
  const bool textured = draw.texture != nullptr && Bind(*draw.texture);
  vertices_.resize(draw.vertexCount);
  PlaceVertices(draw, world, textured ? 0 : -1, vertices_.data());
  stream_.Draw(ModeName(draw.primitive), vertices_);
}

bool PlainExecutor::Bind(const TextureObject& texture) {
  if (refused_.Contains(texture)) return false;
  const auto [item, isNew] = textures_.try_emplace(texture.Id());
  StoredTexture& stored = item->second;
  stored.lastFrame = framesDrawn_;
  glBindTexture(GL_TEXTURE_2D_ARRAY, stored.name.Name());
  if (!isNew) return true;
  // One layer each: drivers round differently for other kinds of texture.
  refused_.Try(texture, [&texture] {
    AllocateLayers(texture.Width(), texture.Height(), 1);
    UploadLayer(texture.Level(0), 0);
  });
  return true;
}

}  // namespace gl
