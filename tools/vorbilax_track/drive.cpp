#include <cstdio>
#include <cstring>

#include "files/FileIO.h"
#include "platform/paths.h"
#include "platform/whole_file.h"
#include "play/clsPlayer.h"
#include "render/frame/clsShadow.h"
#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/drive_run.h"
#include "tools/vorbilax_track/drive_script.h"
#include "tools/vorbilax_track/headless.h"

namespace track_tool {
namespace {

int BadInput(const std::string& reason) {
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", reason.c_str());
  return kBadInput;
}

void LoadCar() {
  Player.load(paths::InInstallFolder("\\models\\player.x"));
  Particles.create();
  Shadow.create();
}

/// Status of the first dead row, or of the whole script.
int Run(const std::vector<KeyRun>& script, bool untilEnd) {
  Drive drive;
  std::puts(kDriveHeader);
  for (const KeyRun& run : script) {
    const KeyboardState keys = KeysOf(run);
    for (int i = 0; i < run.frames; ++i) {
      const DriveRow row = drive.Step(keys);
      std::puts(DriveLine(row).c_str());
      if (untilEnd && row.dead) return std::strcmp(row.event, "win") == 0 ? kFine : kNotWon;
    }
  }
  return untilEnd ? kNotWon : kFine;
}

}  // namespace

int DriveTrack(const std::string& file, const std::string& script, bool untilEnd) {
  std::string text;
  const std::string unreadable = ReadWholeFile(script, text);
  if (!unreadable.empty()) return BadInput(script + ": " + unreadable);
  try {
    const std::vector<KeyRun> runs = ParseScript(text);
    HeadlessEditor editor;
    if (!editor.Start()) return kBadInput;
    const FileIO::Result result = FileIO::ReadLevel(file);
    if (!result.Ok()) return BadInput(result.message);
    LoadCar();
    return Run(runs, untilEnd);
  } catch (const ScriptError& failure) {
    return BadInput(script + ": " + failure.what());
  } catch (const std::exception& failure) {
    return BadInput(failure.what());
  }
}

}  // namespace track_tool
