// The file that a drive is kept in: the track's name with the ending ".keys".
#pragma once

#include <string>

#include "drive/key_script.h"

namespace drives {

/// The file for the drive of the track in this file.
std::string DriveFileOf(const std::string& trackFile);

struct FoundDrive {
  drive::KeyScript script;  ///< empty when there is none
  std::string failure;      ///< why a file that is there is no drive, with its name
};
FoundDrive ReadDriveBeside(const std::string& trackFile);

/// Writes the script to the file of the document's track; asks for one when the track has none. A
/// failure is shown.
void SaveDrive(const drive::KeyScript& script);

}  // namespace drives
