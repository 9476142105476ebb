#include <cstdio>

#include "files/FileIO.h"
#include "platform/error.h"
#include "platform/numbers.h"
#include "platform/qt/images.h"
#include "render/device/DirectX.h"
#include "render/frame/frame_steps.h"
#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/headless.h"

namespace track_tool {
namespace {

void LookAtDepth(double depth) {
  DirectX::ResetCamera();
  const float behind = DirectX::CameraPosition.z;
  DirectX::CameraPosition.z = ToSingle(depth + behind);
  DirectX::CameraTarget.z = ToSingle(depth);
  DirectX::ApplyCamera();
}

}  // namespace

int Render(const std::string& file, const std::string& picture, const RenderOptions& options) {
  HeadlessEditor editor;
  if (!editor.Start(options.plain ? gl::Scheme::Plain : gl::Scheme::Batched)) return kBadInput;
  const FileIO::Result result = FileIO::ReadLevel(file);
  if (!result.Ok()) {
    std::fprintf(stderr, "%s\n", result.message.c_str());
    return kBadInput;
  }
  try {
    LookAtDepth(options.depth);
    for (int frame = 0; frame < options.frames; ++frame) RunFrame({[] {}, {}, {}});
    qt::SaveImageFile(editor.ReadPicture(), picture);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return kBadInput;
  }
  return kFine;
}

}  // namespace track_tool
