// Textures that OpenGL has no room for.
#pragma once

#include <unordered_set>

#include "platform/error.h"
#include "platform/resources.h"

namespace gl {

/// Told at their first draw; from then on what wears them is drawn without a texture.
class RefusedTextures {
 public:
  bool Contains(const TextureObject& texture) const { return ids_.contains(texture.Id()); }
  /// Runs `upload`; when it throws PlatformError, throws that with the texture's name.
  template <typename Upload>
  void Try(const TextureObject& texture, Upload upload) {
    try {
      upload();
    } catch (const PlatformError& failure) {
      ids_.insert(texture.Id());
      throw PlatformError(texture.Name() + ": " + failure.what(), failure.code());
    }
  }

 private:
  std::unordered_set<uint64_t> ids_;
};

}  // namespace gl
