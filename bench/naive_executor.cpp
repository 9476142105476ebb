#include "bench/naive_executor.h"

#include "level/box.h"
#include "level/globals.h"
#include "platform/d3dx_maths.h"
#include "platform/gl/texture_upload.h"
#include "render/device/DirectX.h"

namespace bench {
namespace {

constexpr int kFaceVertices = 6;

std::vector<gl::StreamVertex> UnitBox() {
  std::vector<gl::StreamVertex> vertices;
  for (const Vertex& v : box::MakeVertices(box::Unit()))
    vertices.push_back({v.x, v.y, v.z, v.colour, v.tu, v.tv, 0});
  return vertices;
}

Matrix4 WorldOf(const clsblock& block) {
  Matrix4 world = d3dx::Scaling(block.scaleX(), block.scaleY(), block.scaleZ());
  world.m[3] = {block.Xpos(), block.Ypos(), static_cast<float>(block.Zpos()), 1};
  return world;
}

}  // namespace

NaiveExecutor::NaiveExecutor(const gl::TargetSettings& settings)
    : pipeline_(settings), box_(UnitBox()) {}

void NaiveExecutor::Load() {
  blocks_.clear();
  const auto upload = [this](const std::string& name) {
    return Uploaded(*DirectX::D3DX->CreateTextureFromFileEx(Document.TextureDir + name, {}));
  };
  for (const clsblock& block : Live(Document.Blocks, Document.BlockCount)) {
    blocks_.push_back({WorldOf(block),
                       {upload(block.GetTextureA()), upload(block.GetTextureB()),
                        upload(block.GetTextureC()), upload(block.GetTextureD())}});
  }
}

GLuint NaiveExecutor::Uploaded(const TextureObject& texture) {
  const auto [item, isNew] = textures_.try_emplace(texture.Id());
  const GLuint name = item->second.Name();
  if (!isNew) return name;
  glBindTexture(GL_TEXTURE_2D_ARRAY, name);
  gl::AllocateLayers(texture.Width(), texture.Height(), 1);
  gl::UploadLayer(texture.Level(0), 0);
  return name;
}

void NaiveExecutor::Execute(const CommandList& emptyFrame) {
  frame_ = emptyFrame;
  // As the backdrop leaves them for the pieces.
  frame_.states.push_back(frame_.states.back());
  frame_.states.back().depthWrite = true;
  pipeline_.BeginFrame(frame_);
  for (const Command& command : frame_.commands) {
    if (command.kind == Command::Kind::Clear) {
      pipeline_.Clear(command);
    } else {
      DrawBackdrop(command);
    }
  }
  DrawBlocks(static_cast<uint32_t>(frame_.states.size() - 1));
}

void NaiveExecutor::DrawBackdrop(const Command& draw) {
  pipeline_.Prepare(gl::ModeOf(draw));
  glBindTexture(GL_TEXTURE_2D_ARRAY, Uploaded(*draw.texture));
  vertices_.resize(draw.vertexCount);
  gl::PlaceVertices(draw, frame_.worlds[draw.world], 0, vertices_.data());
  stream_.Bind();
  stream_.Draw(GL_TRIANGLE_STRIP, vertices_);
}

void NaiveExecutor::DrawBlocks(uint32_t states) {
  pipeline_.Prepare({0, states, gl::Shape::Triangles, false});
  const Camera& camera = frame_.cameras[0];
  const Matrix4 toClip = d3dx::Multiply(camera.view, camera.projection);
  program_.Use();
  box_.Bind();
  for (const Block& block : blocks_) {
    program_.ToClip(gl::AsUniform(d3dx::Multiply(block.world, toClip)));
    GLint first = 0;
    for (const GLuint texture : block.textures) {
      glBindTexture(GL_TEXTURE_2D_ARRAY, texture);
      glDrawArrays(GL_TRIANGLES, first, kFaceVertices);
      first += kFaceVertices;
    }
  }
}

}  // namespace bench
