// The track as it was when play began: in the temporary track file and, should that file be lost or
// overwritten, in memory.
#pragma once

#include <string>

#include "files/FileIO.h"

class TemporaryTrack {
 public:
  /// Writes the document to the temporary track file and keeps its bytes. Fails, changing nothing,
  /// only for a track that no file can hold; a file that cannot be written does not matter.
  FileIO::Result Save();

  /// Puts the saved track back into the document. Reads the file, unless it does not hold what Save
  /// wrote.
  FileIO::Result Restore() const;

 private:
  std::string bytes_;
};
