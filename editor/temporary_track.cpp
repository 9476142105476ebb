#include "editor/temporary_track.h"

#include "files/safe_writer.h"
#include "platform/paths.h"
#include "platform/whole_file.h"

namespace {

std::string TempTrackFile() { return paths::InInstallFolder("\\tmp.trk"); }

}  // namespace

FileIO::Result TemporaryTrack::Save() {
  std::string bytes;
  FileIO::Result result = FileIO::LevelBytes(bytes);
  if (!result.Ok()) return result;
  bytes_ = std::move(bytes);
  WriteFileSafely(TempTrackFile(), bytes_);
  return {};
}

FileIO::Result TemporaryTrack::Restore() const {
  // Another copy of the editor shares the folder, so the file may be anybody's by now.
  std::string content;
  const bool readable = ReadWholeFile(TempTrackFile(), content).empty();
  const bool ours = readable && content.starts_with(bytes_);
  return FileIO::ReadLevelBytes(ours ? content : bytes_, TempTrackFile());
}
