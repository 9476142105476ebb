// The pictures that a track names, and whether they are there.
#pragma once

#include <string>
#include <vector>

#include "check/findings.h"
#include "files/level_format.h"

namespace check {

struct WornTexture {
  std::string name;  ///< a file of the document's TextureDir
  PieceName piece;   ///< the first that wears it
  Vector3 place;     ///< of the piece
};

struct NamedFiles {
  std::vector<WornTexture> textures;  ///< each once
  std::string backdrop;               ///< a file of the document's BackgroundDir
};

/// A read puts other pictures in place of missing ones: only the file itself still names them.
NamedFiles FilesOf(const LevelFile& level);
NamedFiles FilesOfDocument();

void CheckFiles(const NamedFiles& files, Findings& findings);

}  // namespace check
