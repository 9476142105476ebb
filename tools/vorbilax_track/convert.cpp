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
  const std::string& told = result.Ok() ? result.warning : result.message;
  if (!told.empty()) std::fprintf(stderr, "%s\n", told.c_str());
  return result.Ok() ? kFine : kBadInput;
}

}  // namespace track_tool
