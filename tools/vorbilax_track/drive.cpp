#include <cstdio>
#include <cstring>

#include "drive/key_script.h"
#include "drive/object_drive.h"
#include "files/FileIO.h"
#include "platform/whole_file.h"
#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/headless.h"

namespace track_tool {
namespace {

int BadInput(const std::string& reason) {
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", reason.c_str());
  return kBadInput;
}

/// Status of the first dead row, or of the whole script.
int Run(const drive::KeyScript& script, bool untilEnd) {
  drive::ObjectDrive driving;
  std::puts(drive::kRowHeader);
  for (drive::KeyReader keys(script); !keys.AtEnd();) {
    const drive::Row row = driving.Step(keys.Next());
    std::puts(RowLine(row).c_str());
    if (untilEnd && row.dead) return std::strcmp(row.event, "win") == 0 ? kFine : kNotWon;
  }
  return untilEnd ? kNotWon : kFine;
}

}  // namespace

int DriveTrack(const std::string& file, const std::string& scriptFile, bool untilEnd) {
  std::string text;
  const std::string unreadable = ReadWholeFile(scriptFile, text);
  if (!unreadable.empty()) return BadInput(scriptFile + ": " + unreadable);
  try {
    const drive::KeyScript script = drive::ParseScript(text);
    HeadlessEditor editor;
    if (!editor.Start()) return kBadInput;
    const FileIO::Result result = FileIO::ReadLevel(file);
    if (!result.Ok()) return BadInput(result.message);
    HeadlessEditor::LoadCar();
    return Run(script, untilEnd);
  } catch (const drive::ScriptError& failure) {
    return BadInput(scriptFile + ": " + failure.what());
  } catch (const std::exception& failure) {
    return BadInput(failure.what());
  }
}

}  // namespace track_tool
