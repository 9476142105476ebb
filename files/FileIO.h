// Tracks to and from level files, and the dialogs that ask for a file.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "files/level_document.h"
#include "level/kept_track.h"

namespace FileIO {

/// How a read or write ended. A failed read has changed nothing in memory, a failed write nothing
/// on the disk.
struct Result {
  std::string message;  ///< why it failed, with the path; empty when it did not
  std::string field;    ///< the field of the file that could not be read, if it was one
  size_t offset = 0;    ///< and its byte offset
  std::string warning;  ///< with the path: written, but what the writer warns of
  bool Ok() const { return message.empty(); }
};

/// Runs after every completed read, when the new track stands in the document.
inline std::function<void()> TrackReplaced;

/// Runs before a save command writes to this path.
inline std::function<void(const std::string& path)> BeforeSave;

inline constexpr const char* kOldVersionText =
    "This track is an old version: When you save it will be converted";
inline constexpr const char* kNoBlocksText = "A track needs at least one block.";

/// The document's bytes as a level file; sets the record names to "No Record" as every save does.
Result LevelBytes(std::string& bytes);
/// Writes the document; shows no message. What was written with a warning is written.
Result WriteLevel(const std::string& path);

/// Replaces the document's track by the file's, all or nothing. Its one message is the notice for
/// an old version. The track that stood there before is moved to `replaced`, if that is given.
Result ReadLevel(const std::string& path, KeptTrack* replaced = nullptr);
/// The same from bytes in memory; `name` stands for the path in the result's message.
Result ReadLevelBytes(std::string_view bytes, const std::string& name,
                      KeptTrack* replaced = nullptr);

/// How a file dialog and the command behind it ended; a failure has been shown to the user, and the
/// first warning of the program's run.
enum class Outcome { Cancelled, Done, Failed };

/// Asks for a file and writes the track to it.
Outcome SaveTrackDialog();
/// Asks for a file and reads it. Mode and check marks are the caller's.
Outcome OpenTrackDialog(KeptTrack* replaced = nullptr);
/// Writes to the current file; asks for one when there is none.
Outcome SaveTrack();

}  // namespace FileIO
