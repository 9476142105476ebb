#include "platform/mesh.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

/// Two quads and a triangle; the first material is used last.
constexpr const char* kModel = R"(xof 0303txt 0032
Mesh {
 7; 0.0; 0.0; 1.0;, 0.0; 2.0; 1.0;, 3.0; 2.0; 1.0;, 3.0; 0.0; 1.0;,
 -1.5; 0.25; -4.0;, -1.5; 1.25; -4.0;, -0.5; 0.25; -4.0;;
 3; 4; 0, 1, 2, 3;, 3; 4, 5, 6;, 4; 3, 2, 1, 0;;
 MeshTextureCoords {
  7; 0.0; 1.0;, 0.0; 0.0;, 1.0; 0.0;, 1.0; 1.0;, 0.25; 0.75;, 0.25; 0.125;, 2.5; 0.75;;
 }
 MeshMaterialList {
  2; 3; 1, 0, 1;
  Material {
   0.5; 0.25; 0.125; 1.0;; 0.0; 0.0; 0.0; 0.0;; 0.0; 0.0; 0.0;;
   TextureFilename { "first.png"; }
  }
  Material { 1.0; 1.0; 1.0; 0.5;; 0.0; 0.0; 0.0; 0.0;; 0.0; 0.0; 0.0;; }
 }
}
)";

class MeshFile : public testing::Test {
 protected:
  ~MeshFile() override { std::filesystem::remove(path_); }
  std::vector<d3dx::MeshObject::Subset> Read(const std::string& text) const {
    std::ofstream(path_, std::ios::binary) << text;
    return mesh::ReadXFile(path_);
  }
  std::string path_ = testing::TempDir() + "mesh_test_" + std::to_string(getpid()) + ".x";
};

TEST_F(MeshFile, FramesPlaceTheirMeshesAndATexturesFolderIsDropped) {
  std::string text = kModel;
  text.replace(text.find("first.png"), 9, "art\\\\skins\\\\car.png");
  text.insert(text.find("Mesh {"),
              "Frame Outer { FrameTransformMatrix {\n"
              "1.0,0.0,0.0,0.0,0.0,2.0,0.0,0.0,0.0,0.0,1.0,0.0,10.0,20.0,30.0,1.0;; }\n");
  const auto subsets = Read(text + "}\n");
  ASSERT_EQ(subsets.size(), 2U);
  EXPECT_EQ(subsets[0].material.textureName, "car.png");
  const auto& triangle = subsets[0].triangles;
  ASSERT_EQ(triangle.size(), 3U);
  // Which corner comes first means nothing, their order does.
  std::vector<Vertex> corners(triangle.begin(), triangle.end());
  std::rotate(corners.begin(), std::ranges::find(corners, 2.5F, &Vertex::tu), corners.end());
  EXPECT_EQ(corners, (std::vector<Vertex>{{9.5F, 20.5F, 26, 0xFFFFFFFF, 0, 2.5F, 0.75F},
                                          {8.5F, 20.5F, 26, 0xFFFFFFFF, 0, 0.25F, 0.75F},
                                          {8.5F, 22.5F, 26, 0xFFFFFFFF, 0, 0.25F, 0.125F}}));
  EXPECT_EQ(subsets[1].triangles.size(), 12U) << "two quads";
  EXPECT_EQ(subsets[1].material.material.diffuse, (ColourValue{1, 1, 1, 0.5F}));
}

TEST_F(MeshFile, MissingCutAndDamagedFilesAreRefusedByName) {
  EXPECT_THROW(mesh::ReadXFile(path_), PlatformError);
  const std::string whole = kModel;
  std::vector<std::string> texts = {"this is no model"};
  for (size_t length = 0; length <= whole.rfind('}'); ++length) {
    texts.push_back(whole.substr(0, length));
  }
  for (const std::string& text : texts) {
    try {
      Read(text);
      ADD_FAILURE() << text << " was read";
    } catch (const PlatformError& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with(path_ + ": ")) << error.what();
    }
  }
}

}  // namespace
