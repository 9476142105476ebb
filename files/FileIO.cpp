#include "files/FileIO.h"

#include <cerrno>
#include <new>
#include <utility>

#include "files/level_bytes.h"
#include "files/safe_writer.h"
#include "level/backdrop.h"
#include "platform/dialogs.h"
#include "platform/error.h"
#include "platform/error_text.h"
#include "platform/paths.h"
#include "platform/whole_file.h"

namespace FileIO {
namespace {

constexpr const char* kDefaultExtension = "bin";

dialogs::FileDialog TrackDialog(const char* title, const char* extension) {
  const std::string levels = paths::InInstallFolder("\\levels\\");
  const std::string folder = paths::IsFolder(levels) ? levels : paths::InInstallFolder("\\");
  return {title, folder, "Vorbilax Levels *.lvl", "*.lvl", extension};
}

/// As a backdrop whose file is missing: the previous picture stays.
void ShowBackdropIfPossible(const FixedText<50>& name) {
  try {
    ShowBackdrop(name.Trimmed());
  } catch (const std::bad_alloc&) {
  }
}

/// Places the built track; nothing here can fail.
void Replace(LevelFile&& level, BuiltTrack&& track, KeptTrack* replaced) {
  if (replaced != nullptr) *replaced = TakeTrack();
  static_cast<PieceCollections&>(Document) = std::move(track.pieces);
  if (level.TrackRecords) Document.TrackRecords = *level.TrackRecords;
  Document.TrackSettings = std::move(level.TrackSettings);
  Document.Gravity = track.Gravity;
  Document.BackgroundName = level.BackgroundName;
  Document.TextureNames = std::move(level.TextureNames);
  Document.TextureCount = static_cast<int16_t>(Document.TextureNames.size() - 1);
  ShowBackdropIfPossible(level.BackgroundName);
  Document.TrackLoaded = true;
  Document.PlatformsPaused = false;
  Document.SelectedIndex = 0;
  Document.SelectedType = TypeBlock;
  Document.SelectedPlane = 1;
}

Result Failure(const std::string& path, const std::string& reason) {
  return {path + ": " + reason, {}, 0, {}};
}

Outcome ReportOutcome(const Result& result) {
  static bool warned = false;
  if (!result.Ok()) {
    dialogs::ShowMessage(result.message);
    return Outcome::Failed;
  }
  // A file system that cannot do better would warn at every save.
  if (!result.warning.empty() && !std::exchange(warned, true)) {
    dialogs::ShowMessage(result.warning);
  }
  return Outcome::Done;
}

Outcome SaveTo(const std::string& path) {
  if (BeforeSave) BeforeSave(path);
  const Outcome outcome = ReportOutcome(WriteLevel(path));
  if (outcome == Outcome::Done) Document.Origin = path;
  return outcome;
}

}  // namespace

Result LevelBytes(std::string& bytes) {
  if (Document.BlockCount < 0) return {kNoBlocksText, {}, 0, {}};
  try {
    BuildTextureTable();
    for (auto& name : Document.TrackRecords.RecordNames) name = "No Record";
    bytes = SerializeLevel(DescribeDocument());
    return {};
  } catch (const std::overflow_error& failure) {
    return {failure.what(), {}, 0, {}};
  } catch (const std::bad_alloc&) {
    return {ErrorText(ENOMEM), {}, 0, {}};
  }
}

Result WriteLevel(const std::string& path) {
  std::string bytes;
  if (Result result = LevelBytes(bytes); !result.Ok()) return result;
  try {
    const Written written = WriteFileSafely(path, bytes);
    if (!written.failure.empty()) return Failure(path, written.failure);
    Result result;
    if (!written.warning.empty()) result.warning = path + ": " + written.warning;
    return result;
  } catch (const std::bad_alloc&) {
    return Failure(path, ErrorText(ENOMEM));
  }
}

Result ReadLevel(const std::string& path, KeptTrack* replaced) {
  std::string bytes;
  const std::string reason = ReadWholeFile(path, bytes);
  return reason.empty() ? ReadLevelBytes(bytes, path, replaced) : Failure(path, reason);
}

Result ReadLevelBytes(std::string_view bytes, const std::string& name, KeptTrack* replaced) {
  try {
    LevelFile level = ParseLevel(bytes);
    BuiltTrack track = BuildTrack(level);
    if (level.Version < kLevelFileVersion) dialogs::ShowMessage(kOldVersionText);
    Replace(std::move(level), std::move(track), replaced);
  } catch (const LevelFormatError& failure) {
    return {name + ": " + failure.what(), failure.field(), failure.offset(), {}};
  } catch (const std::overflow_error&) {
    return Failure(name, "a position or size is out of range");
  } catch (const PlatformError& failure) {
    return Failure(name, failure.what());
  } catch (const std::bad_alloc&) {
    return Failure(name, ErrorText(ENOMEM));
  }
  if (TrackReplaced) TrackReplaced();
  return {};
}

Outcome SaveTrackDialog() {
  const auto path = dialogs::SaveFile(TrackDialog("Save File", kDefaultExtension));
  if (!path) return Outcome::Cancelled;
  const Outcome outcome = SaveTo(*path);
  if (outcome == Outcome::Done) Document.CurrentFileName = *path;
  return outcome;
}

Outcome OpenTrackDialog(KeptTrack* replaced) {
  const auto path = dialogs::OpenFile(TrackDialog("Open", ""));
  if (!path) return Outcome::Cancelled;
  const Outcome outcome = ReportOutcome(ReadLevel(*path, replaced));
  if (outcome == Outcome::Done) Document.CurrentFileName = Document.Origin = *path;
  return outcome;
}

Outcome SaveTrack() {
  if (Document.CurrentFileName.empty()) return SaveTrackDialog();
  return SaveTo(Document.CurrentFileName);
}

}  // namespace FileIO
