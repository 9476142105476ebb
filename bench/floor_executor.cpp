#include "bench/floor_executor.h"

#include <algorithm>

#include "bench/visible_triangles.h"
#include "platform/frustum.h"

namespace bench {
namespace {

/// Vertices of one OpenGL draw; more at once are slower with some drivers, and whole triangles.
constexpr size_t kPiece = 510;

bool IsDraw(const Command& command) { return command.kind == Command::Kind::Draw; }

}  // namespace

void FloorExecutor::Prepare(std::vector<CommandList> frames) {
  frames_.clear();
  UploadTextures(frames);
  for (CommandList& list : frames) frames_.push_back(Build(std::move(list)));
}

void FloorExecutor::UploadTextures(const std::vector<CommandList>& frames) {
  textures_ = std::make_unique<gl::TextureArrays>();
  // Arrays grow in the first turn; in the second all textures find the places where they stay.
  for (int turn = 0; turn < 2; ++turn) {
    textures_->BeginFrame();
    for (const CommandList& list : frames) {
      for (const Command& command : list.commands) {
        if (command.texture != nullptr) textures_->Find(*command.texture);
      }
    }
  }
}

FloorExecutor::Frame FloorExecutor::Build(CommandList list) {
  Frame frame;
  std::vector<gl::StreamVertex> vertices, scratch;
  for (const Command& draw : list.commands) {
    if (!IsDraw(draw)) continue;
    const auto place =
        draw.texture != nullptr ? textures_->Find(*draw.texture) : gl::TextureArrays::Place();
    const size_t first = vertices.size();
    vertices.resize(first + gl::ExpandedCount(draw));
    gl::PlaceExpanded(draw, list.worlds[draw.world], place.layer, vertices.data() + first, scratch);
    if (draw.format == VertexFormat::World) {
      vertices.resize(first + KeepVisible(std::span(vertices).subspan(first),
                                          WorldToClip(list.cameras[draw.camera])));
    }
    if (vertices.size() == first) continue;
    const gl::DrawMode mode = gl::ModeOf(draw);
    auto& batches = frame.batches;
    const bool joins =
        !batches.empty() && batches.back().mode == mode &&
        (place.array == 0 || batches.back().array == 0 || batches.back().array == place.array);
    if (!joins) batches.push_back({mode, 0, first, 0});
    if (place.array != 0) batches.back().array = place.array;
    batches.back().count += vertices.size() - first;
  }
  list.commands.resize(1);
  frame.list = std::move(list);
  frame.vertices = std::make_unique<StaticVertices>(vertices);
  return frame;
}

void FloorExecutor::Draw(size_t number) {
  const Frame& frame = frames_[number];
  pipeline_.BeginFrame(frame.list);
  pipeline_.Clear(frame.list.commands.front());
  frame.vertices->Bind();
  for (const Batch& batch : frame.batches) {
    pipeline_.Prepare(batch.mode);
    if (batch.array != 0) glBindTexture(GL_TEXTURE_2D_ARRAY, batch.array);
    for (size_t done = 0; done < batch.count; done += kPiece) {
      glDrawArrays(GL_TRIANGLES, static_cast<GLint>(batch.first + done),
                   static_cast<GLsizei>(std::min(kPiece, batch.count - done)));
    }
  }
}

}  // namespace bench
