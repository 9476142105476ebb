#include "platform/gl/texture_arrays.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "platform/gl/texture_upload.h"

namespace gl {
namespace {

constexpr int kFirstLayers = 8, kMostLayers = 256;
constexpr int64_t kFirstBytes = int64_t{16} << 20, kMostBytes = int64_t{256} << 20;
constexpr uint64_t kFramesBetweenSweeps = 64;

int DeviceLayers() {
  GLint most = 0;
  glGetIntegerv(GL_MAX_ARRAY_TEXTURE_LAYERS, &most);
  return most;
}

}  // namespace

LayerCounts LayersFor(int width, int height, int deviceMost) {
  const int64_t bytes = std::max<int64_t>(1, int64_t{4} * width * height);
  const auto within = [bytes](int64_t budget, int most) {
    return static_cast<int>(std::clamp<int64_t>(budget / bytes, 1, most));
  };
  return {within(kFirstBytes, std::min(deviceMost, kFirstLayers)),
          within(kMostBytes, std::min(deviceMost, kMostLayers))};
}

void TextureArrays::BeginFrame() {
  outgrown_.clear();
  if (++frame_ % kFramesBetweenSweeps != 0) return;
  std::erase_if(entries_, [this](const auto& item) {
    const Entry& entry = item.second;
    if (entry.lastFrame + kFramesKept >= frame_) return false;
    entry.page->freeLayers.push_back(entry.layer);
    return true;
  });
  for (auto& [size, pages] : pages_) {
    std::erase_if(pages, [](const auto& page) {
      return page->freeLayers.size() == static_cast<size_t>(page->layers);
    });
  }
}

TextureArrays::Place TextureArrays::Find(const TextureObject& texture) {
  if (refused_.Contains(texture)) return {};
  if (!entries_.contains(texture.Id())) refused_.Try(texture, [&] { Upload(texture); });
  Entry& entry = entries_.at(texture.Id());
  entry.lastFrame = frame_;
  return {entry.page->name.Name(), entry.layer};
}

void TextureArrays::Upload(const TextureObject& texture) {
  Page& page = PageWithRoom({texture.Width(), texture.Height()});
  const int32_t layer = page.freeLayers.back();
  glBindTexture(GL_TEXTURE_2D_ARRAY, page.name.Name());
  UploadLayer(texture.Level(0), layer);
  page.freeLayers.pop_back();
  entries_[texture.Id()] = {&page, layer, frame_};
}

TextureArrays::Page& TextureArrays::PageWithRoom(const Size& size) {
  auto& pages = pages_[size];
  for (const auto& page : pages) {
    if (!page->freeLayers.empty()) return *page;
  }
  const LayerCounts counts = LayersFor(size.first, size.second, DeviceLayers());
  if (pages.empty() || 2 * pages.back()->layers > counts.most) {
    pages.push_back(std::make_unique<Page>());
  }
  // A page grows by starting anew: its textures come back as they are drawn with.
  Page& page = *pages.back();
  if (page.layers > 0) {
    Forget(page);
    outgrown_.push_back(std::exchange(page.name, TextureName()));
  }
  page.layers = page.layers > 0 ? 2 * page.layers : counts.first;
  page.freeLayers.resize(static_cast<size_t>(page.layers));
  std::iota(page.freeLayers.rbegin(), page.freeLayers.rend(), 0);
  glBindTexture(GL_TEXTURE_2D_ARRAY, page.name.Name());
  try {
    AllocateLayers(size.first, size.second, page.layers);
  } catch (...) {
    pages.pop_back();
    throw;
  }
  return page;
}

void TextureArrays::Forget(const Page& page) {
  std::erase_if(entries_, [&page](const auto& item) { return item.second.page == &page; });
}

}  // namespace gl
