#include "editor/drives/drive_file.h"

#include <filesystem>
#include <new>

#include "files/safe_writer.h"
#include "level/globals.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "platform/whole_file.h"

namespace drives {
namespace {

constexpr const char* kEnding = "keys";

std::optional<std::string> AskForFile() {
  const std::string levels = paths::InInstallFolder("\\levels\\");
  const std::string folder = paths::IsFolder(levels) ? levels : paths::InInstallFolder("\\");
  return dialogs::SaveFile({"Save Drive", folder, "Vorbilax Drives *.keys", "*.keys", kEnding});
}

}  // namespace

std::string DriveFileOf(const std::string& trackFile) {
  return std::filesystem::path(trackFile).replace_extension(kEnding).string();
}

FoundDrive ReadDriveBeside(const std::string& trackFile) {
  const std::string path = DriveFileOf(trackFile);
  std::error_code ignored;
  if (path == trackFile || !std::filesystem::is_regular_file(path, ignored)) return {};
  const std::string name = std::filesystem::path(path).filename().string();
  std::string text;
  if (const std::string reason = ReadWholeFile(path, text); !reason.empty()) {
    return {{}, name + ": " + reason};
  }
  try {
    return {drive::ParseScript(text), {}};
  } catch (const drive::ScriptError& failure) {
    return {{}, name + ": " + failure.what()};
  }
}

void SaveDrive(const drive::KeyScript& script) {
  const std::string& track = Document.CurrentFileName;
  const auto path = track.empty() ? AskForFile() : std::optional(DriveFileOf(track));
  if (!path) return;
  const Written written = WriteFileSafely(*path, ScriptText(script), OldRest::Dropped);
  const std::string& said = written.failure.empty() ? written.warning : written.failure;
  if (!said.empty()) dialogs::ShowMessage(*path + ": " + said);
}

}  // namespace drives
