#include "level/face_picture.h"

#include <unordered_map>

#include "render/device/DirectX.h"

FacePicturePtr LoadFacePicture(const std::string& name, const std::string& folder) {
  static std::unordered_map<std::string, std::weak_ptr<const FacePicture>> loaded;
  const std::string path = folder + name;
  const TexturePtr texture = DirectX::D3DX->CreateTextureFromFileEx(path, {});
  std::weak_ptr<const FacePicture>& known = loaded[path];
  FacePicturePtr picture = known.lock();
  // The file may have changed since.
  if (!picture || picture->texture != texture || picture->name != name) {
    picture = std::make_shared<const FacePicture>(FacePicture{name, texture});
    known = picture;
  }
  return picture;
}

const std::string& NameOf(const FacePicturePtr& picture) {
  static const std::string none;
  return picture ? picture->name : none;
}

const TexturePtr& TextureOf(const FacePicturePtr& picture) {
  static const TexturePtr none;
  return picture ? picture->texture : none;
}
