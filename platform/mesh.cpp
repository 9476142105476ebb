#include "platform/mesh.h"

#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <assimp/Importer.hpp>

namespace mesh {
namespace {

using Subsets = std::vector<d3dx::MeshObject::Subset>;

d3dx::MeshMaterial MaterialOf(const aiMaterial& source) {
  d3dx::MeshMaterial result;
  aiColor4D diffuse(1, 1, 1, 1);
  source.Get(AI_MATKEY_COLOR_DIFFUSE, diffuse);
  result.material.diffuse = {diffuse.r, diffuse.g, diffuse.b, diffuse.a};
  aiString texture;
  if (source.GetTexture(aiTextureType_DIFFUSE, 0, &texture) == aiReturn_SUCCESS) {
    const std::string name = texture.C_Str();
    result.textureName = name.substr(name.find_last_of("/\\") + 1);
  }
  return result;
}

Vertex VertexOf(const aiMesh& mesh, unsigned index, const aiMatrix4x4& place) {
  const aiVector3D position = place * mesh.mVertices[index];
  Vertex vertex{position.x, position.y, position.z, 0xFFFFFFFF, 0, 0, 0};
  if (mesh.HasTextureCoords(0)) {
    vertex.tu = mesh.mTextureCoords[0][index].x;
    vertex.tv = mesh.mTextureCoords[0][index].y;
  }
  return vertex;
}

void AppendMesh(const aiMesh& mesh, const aiMatrix4x4& place, Subsets& subsets) {
  std::vector<Vertex>& triangles = subsets.at(mesh.mMaterialIndex).triangles;
  for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
    const aiFace& face = mesh.mFaces[f];
    if (face.mNumIndices != 3) continue;  // a point or a line shows nothing
    for (unsigned i = 0; i < 3; ++i) triangles.push_back(VertexOf(mesh, face.mIndices[i], place));
  }
}

/// A frame of the file places everything below it.
void AppendNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& parent,
                Subsets& subsets) {
  const aiMatrix4x4 place = parent * node.mTransformation;
  for (unsigned i = 0; i < node.mNumMeshes; ++i) {
    AppendMesh(*scene.mMeshes[node.mMeshes[i]], place, subsets);
  }
  for (unsigned i = 0; i < node.mNumChildren; ++i) {
    AppendNode(scene, *node.mChildren[i], place, subsets);
  }
}

}  // namespace

Subsets ReadXFile(const std::string& path) {
  Assimp::Importer importer;
  // The importer turns everything right-handed; converting back restores the file's own numbers.
  const aiScene* scene =
      importer.ReadFile(path, aiProcess_Triangulate | aiProcess_ConvertToLeftHanded |
                                  aiProcess_ValidateDataStructure);
  if (scene == nullptr) throw PlatformError(path + ": " + importer.GetErrorString());
  if (scene->mRootNode == nullptr || scene->mNumMeshes == 0) {
    throw PlatformError(path + ": no mesh in the file");
  }
  Subsets subsets(scene->mNumMaterials);
  for (unsigned i = 0; i < scene->mNumMaterials; ++i) {
    subsets[i].material = MaterialOf(*scene->mMaterials[i]);
  }
  AppendNode(*scene, *scene->mRootNode, aiMatrix4x4(), subsets);
  return subsets;
}

}  // namespace mesh
