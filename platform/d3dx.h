// The utility library beside the device: texture and mesh loading.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/d3dx_maths.h"
#include "platform/device.h"

namespace d3dx {

/// Explicit settings of a texture load.
struct TextureSettings {
  int width = 0;   ///< 0: as in the file
  int height = 0;  ///< 0: as in the file
  TextureObject::Format format = TextureObject::Format::Colour32;
  uint32_t colourKey = 0;  ///< pixels of exactly this 0xAARRGGBB become transparent black; 0: none
  bool operator==(const TextureSettings&) const = default;
};

/// One material of a mesh file.
struct MeshMaterial {
  Material material;
  std::string textureName;  ///< file name without folder, may be empty
};

/// A loaded model: one managed buffer of triangles per material.
class MeshObject {
 public:
  struct Subset {
    MeshMaterial material;
    std::vector<Vertex> triangles;
  };
  explicit MeshObject(const std::vector<Subset>& subsets);

  int32_t MaterialCount() const { return static_cast<int32_t>(materials_.size()); }
  const std::vector<MeshMaterial>& Materials() const { return materials_; }
  size_t TriangleCount(int32_t subset) const;
  /// Three vertices per triangle.
  std::span<const Vertex> Triangles(int32_t subset) const {
    return buffers_.at(static_cast<size_t>(subset))->Vertices<Vertex>();
  }
  /// Corners of the box around all vertices and the origin.
  const Vector3& Smallest() const { return smallest_; }
  const Vector3& Greatest() const { return greatest_; }
  void DrawSubset(Device& device, int32_t subset) const;

 private:
  std::vector<MeshMaterial> materials_;
  std::vector<VertexBufferPtr> buffers_;
  Vector3 smallest_, greatest_;
};
using MeshPtr = std::shared_ptr<const MeshObject>;

/// Reads a picture file; throws PlatformError.
using ImageDecoder = std::function<Image(const std::string& path)>;
/// Reads a mesh file; throws PlatformError.
using MeshReader = std::function<std::vector<MeshObject::Subset>(const std::string& path)>;

/// Loads textures and meshes. A file is decoded once per (path, settings, file time) and shared.
class Library {
 public:
  Library(ImageDecoder decoder, MeshReader meshReader);

  /// Default settings: everything as in the file. Throws PlatformError.
  TexturePtr CreateTextureFromFile(const std::string& path);
  TexturePtr CreateTextureFromFileEx(const std::string& path, const TextureSettings& settings);
  /// Throws PlatformError.
  MeshPtr LoadMeshFromX(const std::string& path);

 private:
  struct CachedTexture {
    TextureSettings settings;
    std::filesystem::file_time_type time;
    TexturePtr texture;
  };
  struct CachedMesh {
    std::filesystem::file_time_type time;
    MeshPtr mesh;
  };
  ImageDecoder decoder_;
  MeshReader meshReader_;
  std::unordered_multimap<std::string, CachedTexture> textures_;
  std::unordered_map<std::string, CachedMesh> meshes_;
};

}  // namespace d3dx
