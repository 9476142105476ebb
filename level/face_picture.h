// The picture on a face: what level files call it, and its texture.
#pragma once

#include <memory>
#include <string>

#include "platform/resources.h"

struct FacePicture {
  std::string name;
  TexturePtr texture;
};
/// Faces with the same picture share it; null: none yet.
using FacePicturePtr = std::shared_ptr<const FacePicture>;

/// Loads folder & name. Throws PlatformError.
FacePicturePtr LoadFacePicture(const std::string& name, const std::string& folder);

/// Empty where there is none.
const std::string& NameOf(const FacePicturePtr& picture);
/// Null where there is none.
const TexturePtr& TextureOf(const FacePicturePtr& picture);
