// The text form of a model.
#include <cstdio>

#include "assets/mesh.h"

namespace art {
namespace {

std::string Numbers(const char* form, double a, double b, double c = 0) {
  char line[96];
  // A rounded -0 would make the file depend on signs nobody sees.
  const auto clean = [](double x) { return x > -5e-6 && x < 5e-6 ? 0.0 : x; };
  std::snprintf(line, sizeof line, form, clean(a), clean(b), clean(c));
  return line;
}

// Items one a line; the format closes a list with a semicolon where others have a comma.
template <typename Item>
std::string List(size_t count, const Item& item) {
  std::string text = std::to_string(count) + ";\n";
  for (size_t i = 0; i < count; ++i) text += item(i) + (i + 1 < count ? ",\n" : ";\n");
  return text;
}

std::string Triple(size_t i) {
  const size_t first = 3 * i;
  return "3;" + std::to_string(first) + "," + std::to_string(first + 1) + "," +
         std::to_string(first + 2) + ";";
}

}  // namespace

std::string Mesh::Text(const std::string& name, const std::string& skin) const {
  const size_t faces = triangles_.size(), corners = 3 * faces;
  const auto at = [&](size_t i) -> const Corner& { return triangles_[i / 3][i % 3]; };
  std::string text = "xof 0303txt 0032\n\nMesh " + name + " {\n";
  text += List(corners, [&](size_t i) {
    return Numbers("%.5f;%.5f;%.5f;", at(i).place.x, at(i).place.y, at(i).place.z);
  });
  text += List(faces, Triple);
  text += "MeshNormals {\n";
  text += List(corners, [&](size_t i) {
    return Numbers("%.5f;%.5f;%.5f;", at(i).normal.x, at(i).normal.y, at(i).normal.z);
  });
  text += List(faces, Triple) + "}\nMeshTextureCoords {\n";
  text +=
      List(corners, [&](size_t i) { return Numbers("%.5f;%.5f;", at(i).skin.x, at(i).skin.y); });
  text += "}\nMeshMaterialList {\n1;\n" + List(faces, [](size_t) { return std::string("0"); });
  text += "Material {\n1.0;1.0;1.0;1.0;;\n12.0;\n0.35;0.35;0.35;;\n0.0;0.0;0.0;;\n";
  text += "TextureFilename { \"" + skin + "\"; }\n}\n}\n}\n";
  return text;
}

}  // namespace art
