#include <cstdio>

#include "files/FileIO.h"
#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/headless.h"

namespace track_tool {

int Convert(const std::string& input, const std::string& output) {
  HeadlessEditor editor;
  if (!editor.Start()) return kBadInput;
  FileIO::Result result = FileIO::ReadLevel(input);
  if (result.Ok()) result = FileIO::WriteLevel(output);
  if (result.Ok()) return kFine;
  std::fprintf(stderr, "%s\n", result.message.c_str());
  return kBadInput;
}

}  // namespace track_tool
