#include "platform/gl/texture_arrays.h"

#include <numeric>

#include "platform/gl/texture_upload.h"

namespace gl {
namespace {

constexpr int kFirstLayers = 8;
constexpr uint64_t kFramesBetweenSweeps = 64;

int MostLayers() {
  GLint most = 0;
  glGetIntegerv(GL_MAX_ARRAY_TEXTURE_LAYERS, &most);
  return std::min(most, 256);
}

}  // namespace

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
  const auto found = entries_.find(texture.Id());
  Entry& entry = found != entries_.end() ? found->second : Upload(texture);
  entry.lastFrame = frame_;
  return {entry.page->name.Name(), entry.layer};
}

TextureArrays::Entry& TextureArrays::Upload(const TextureObject& texture) {
  Page& page = PageWithRoom({texture.Width(), texture.Height()});
  const int32_t layer = page.freeLayers.back();
  page.freeLayers.pop_back();
  glBindTexture(GL_TEXTURE_2D_ARRAY, page.name.Name());
  UploadLayer(texture.Level(0), layer);
  return entries_[texture.Id()] = {&page, layer, frame_};
}

TextureArrays::Page& TextureArrays::PageWithRoom(const Size& size) {
  auto& pages = pages_[size];
  for (const auto& page : pages) {
    if (!page->freeLayers.empty()) return *page;
  }
  if (pages.empty() || 2 * pages.back()->layers > MostLayers()) {
    pages.push_back(std::make_unique<Page>());
  }
  // A page grows by starting anew: its textures come back as they are drawn with.
  Page& page = *pages.back();
  if (page.layers > 0) {
    Forget(page);
    outgrown_.push_back(std::exchange(page.name, TextureName()));
  }
  page.layers = page.layers > 0 ? 2 * page.layers : std::min(kFirstLayers, MostLayers());
  page.freeLayers.resize(static_cast<size_t>(page.layers));
  std::iota(page.freeLayers.rbegin(), page.freeLayers.rend(), 0);
  glBindTexture(GL_TEXTURE_2D_ARRAY, page.name.Name());
  AllocateLayers(size.first, size.second, page.layers);
  return page;
}

void TextureArrays::Forget(const Page& page) {
  std::erase_if(entries_, [&page](const auto& item) { return item.second.page == &page; });
}

}  // namespace gl
