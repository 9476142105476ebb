// Mesh files.
#pragma once

#include <string>
#include <vector>

#include "platform/d3dx.h"

namespace mesh {

/// Reads an .x file: one subset per material, triangles clockwise as seen from outside, vertices
/// white. Throws PlatformError with the file's name when it is missing or damaged.
std::vector<d3dx::MeshObject::Subset> ReadXFile(const std::string& path);

}  // namespace mesh
