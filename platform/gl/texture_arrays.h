// The batched scheme's textures: all textures of one size share an array texture.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "platform/gl/objects.h"
#include "platform/gl/refused_textures.h"
#include "platform/resources.h"

namespace gl {

/// Layers of an array for pictures of this size: at first, and at most on a device that allows
/// `deviceMost`. Great pictures come in small numbers.
struct LayerCounts {
  int first = 1, most = 1;
};
LayerCounts LayersFor(int width, int height, int deviceMost);

/// Layers for the textures that frames draw with. Both pixel formats share arrays: their pictures
/// differ, their storage does not.
class TextureArrays {
 public:
  /// Where a texture lies. `array` is an OpenGL name and stays valid to the end of the frame.
  struct Place {
    GLuint array = 0;
    int32_t layer = -1;
  };

  /// Starts a frame: gives up what was not used for long.
  void BeginFrame();
  /// Uploads the texture when it is new. May bind GL_TEXTURE_2D_ARRAY on unit 0. Throws
  /// PlatformError, once, for a texture that OpenGL refuses; its place is none.
  Place Find(const TextureObject& texture);

  size_t TextureCount() const { return entries_.size(); }

 private:
  struct Page {
    TextureName name;
    int layers = 0;
    std::vector<int32_t> freeLayers;
  };
  struct Entry {
    Page* page = nullptr;
    int32_t layer = 0;
    uint64_t lastFrame = 0;
  };
  using Size = std::pair<int, int>;

  void Upload(const TextureObject& texture);
  Page& PageWithRoom(const Size& size);
  void Forget(const Page& page);

  std::unordered_map<uint64_t, Entry> entries_;  // by TextureObject::Id
  std::map<Size, std::vector<std::unique_ptr<Page>>> pages_;
  std::vector<TextureName> outgrown_;  // draws of this frame may still need them
  RefusedTextures refused_;
  uint64_t frame_ = 0;
};

}  // namespace gl
