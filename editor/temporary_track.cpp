#include "editor/temporary_track.h"

#include <utility>

#include "files/safe_writer.h"
#include "platform/paths.h"
#include "platform/whole_file.h"

namespace {

std::string TempTrackFile() { return paths::InInstallFolder("\\tmp.trk"); }

}  // namespace

FileIO::Result TemporaryTrack::Enter() {
  std::string bytes;
  FileIO::Result result = FileIO::LevelBytes(bytes);
  if (!result.Ok()) return result;
  bytes_ = std::move(bytes);
  WriteFileSafely(TempTrackFile(), bytes_);
  // Play starts from the track exactly as a file read produces it.
  KeptTrack edited;
  result = Read(&edited);
  if (result.Ok()) edited_ = std::move(edited);
  return result;
}

FileIO::Result TemporaryTrack::Restart() {
  FileIO::Result result = Read();
  if (!result.Ok()) GiveBack();
  return result;
}

FileIO::Result TemporaryTrack::Leave() {
  FileIO::Result result = Read();
  std::string restored;
  // A picture that is missing now has been replaced by the default one.
  const bool same = result.Ok() && FileIO::LevelBytes(restored).Ok() && restored == bytes_;
  if (!same) GiveBack();
  edited_.reset();
  return result;
}

std::optional<KeptTrack> TemporaryTrack::Forget() { return std::exchange(edited_, std::nullopt); }

void TemporaryTrack::GiveBack() {
  if (!edited_) return;
  Document.ObjectSelected = false;
  Document.SelectedType = TypeBlock;
  Document.SelectedIndex = 0;
  PutTrack(std::move(*edited_));
  edited_.reset();
}

FileIO::Result TemporaryTrack::Read(KeptTrack* replaced) const {
  // Another copy of the editor shares the folder, so the file may be anybody's by now.
  std::string content;
  const bool readable = ReadWholeFile(TempTrackFile(), content).empty();
  const bool ours = readable && content.starts_with(bytes_);
  return FileIO::ReadLevelBytes(ours ? content : bytes_, TempTrackFile(), replaced);
}
