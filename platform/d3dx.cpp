#include "platform/d3dx.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>

#include "platform/error_text.h"

namespace d3dx {
namespace {

namespace fs = std::filesystem;

/// The file's time. Throws PlatformError when there is no such file or it is none: to open a pipe
/// would wait for its writer. One call: a track asks this for every face.
fs::file_time_type TimeOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) throw PlatformError(path + ": " + ErrorText(errno));
  if (!S_ISREG(status.st_mode)) throw PlatformError(path + ": not a file");
  using namespace std::chrono;
  const nanoseconds time = seconds(status.st_mtim.tv_sec) + nanoseconds(status.st_mtim.tv_nsec);
  return fs::file_time_type::clock::from_sys(sys_time<nanoseconds>(time));
}

uint32_t Mix(uint32_t a, uint32_t b, double t) {
  uint32_t mixed = 0;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    const double from = (a >> shift) & 0xFFU, to = (b >> shift) & 0xFFU;
    mixed |= static_cast<uint32_t>(std::lround(from + (to - from) * t)) << shift;
  }
  return mixed;
}

/// Bilinear, on pixel centres.
Image Resample(const Image& image, int width, int height) {
  Image result(width, height);
  for (int y = 0; y < height; ++y) {
    const double v = std::clamp((y + 0.5) * image.height / height - 0.5, 0.0, image.height - 1.0);
    const int y0 = static_cast<int>(v), y1 = std::min(y0 + 1, image.height - 1);
    for (int x = 0; x < width; ++x) {
      const double u = std::clamp((x + 0.5) * image.width / width - 0.5, 0.0, image.width - 1.0);
      const int x0 = static_cast<int>(u), x1 = std::min(x0 + 1, image.width - 1);
      result.At(x, y) = Mix(Mix(image.At(x0, y0), image.At(x1, y0), u - x0),
                            Mix(image.At(x0, y1), image.At(x1, y1), u - x0), v - y0);
    }
  }
  return result;
}

}  // namespace

Library::Library(ImageDecoder decoder, MeshReader meshReader)
    : decoder_(std::move(decoder)), meshReader_(std::move(meshReader)) {}

TexturePtr Library::CreateTextureFromFile(const std::string& path) {
  return CreateTextureFromFileEx(path, {});
}

TexturePtr Library::CreateTextureFromFileEx(const std::string& path,
                                            const TextureSettings& settings) {
  const auto time = TimeOf(path);
  const auto [begin, end] = textures_.equal_range(path);
  const auto found = std::find_if(
      begin, end, [&](const auto& entry) { return entry.second.settings == settings; });
  if (found != end && found->second.time == time) return found->second.texture;

  Image image = decoder_(path);
  // The key is exact, so it is applied before anything mixes neighbouring pixels.
  if (settings.colourKey != 0) std::ranges::replace(image.pixels, settings.colourKey, 0U);
  const int width = settings.width > 0 ? settings.width : image.width;
  const int height = settings.height > 0 ? settings.height : image.height;
  if (width != image.width || height != image.height) image = Resample(image, width, height);

  CachedTexture fresh{settings, time,
                      std::make_shared<TextureObject>(std::move(image), settings.format, path)};
  TexturePtr texture = fresh.texture;
  if (found != end) {
    found->second = std::move(fresh);
  } else {
    textures_.emplace(path, std::move(fresh));
  }
  return texture;
}

MeshPtr Library::LoadMeshFromX(const std::string& path) {
  const auto time = TimeOf(path);
  CachedMesh& cached = meshes_[path];
  if (!cached.mesh || cached.time != time) {
    cached = {time, std::make_shared<MeshObject>(meshReader_(path))};
  }
  return cached.mesh;
}

MeshObject::MeshObject(const std::vector<Subset>& subsets) {
  for (const Subset& subset : subsets) {
    materials_.push_back(subset.material);
    buffers_.push_back(std::make_shared<VertexBufferObject>(std::span(subset.triangles)));
    for (const Vertex& v : subset.triangles) {
      smallest_ = {std::min(smallest_.x, v.x), std::min(smallest_.y, v.y),
                   std::min(smallest_.z, v.z)};
      greatest_ = {std::max(greatest_.x, v.x), std::max(greatest_.y, v.y),
                   std::max(greatest_.z, v.z)};
    }
  }
}

size_t MeshObject::TriangleCount(int32_t subset) const {
  return buffers_.at(static_cast<size_t>(subset))->VertexCount() / 3;
}

void MeshObject::DrawSubset(Device& device, int32_t subset) const {
  const size_t triangles = TriangleCount(subset);
  if (triangles == 0) return;
  device.SetVertexFormat(VertexFormat::World);
  device.SetStreamSource(buffers_[static_cast<size_t>(subset)], sizeof(Vertex));
  device.DrawPrimitive(Primitive::TriangleList, 0, static_cast<uint32_t>(triangles));
}

}  // namespace d3dx
