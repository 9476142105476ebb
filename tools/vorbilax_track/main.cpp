// vorbilax-track: level files without the editor's window, for scripts and tests.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>

#include "platform/error_text.h"
#include "platform/paths.h"
#include "search/drive_search.h"
#include "tools/vorbilax_track/commands.h"

namespace {

/// The command's status; what it could not foresee is bad input too.
int Run(const std::function<int()>& command) {
  std::string reason;
  try {
    const int status = command();
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    reason = "the output could not be written: " + ErrorText(errno);
  } catch (const std::bad_alloc&) {
    reason = ErrorText(ENOMEM);
  } catch (const std::exception& failure) {
    reason = failure.what();
  }
  std::fprintf(stderr, "%s\n", reason.c_str());
  return track_tool::kBadInput;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace track_tool;
  CLI::App app("Reads, converts, draws and verifies Vorbilax level files.", "vorbilax-track");
  app.require_subcommand(1);
  app.fallthrough();
  std::string data = paths::ProgramFolder();
  app.add_option("--data", data, "folder with textures, backgrounds, models and skins");

  std::string input, output;
  bool json = false;
  CLI::App* info = app.add_subcommand("info", "what a level file holds");
  info->add_option("FILE", input, "level file")->required();
  info->add_flag("--json", json, "as JSON");

  CLI::App* convert = app.add_subcommand("convert", "rewrite a level file in the current version");
  convert->add_option("IN", input, "level file of any version")->required();
  convert->add_option("OUT", output, "file to write")->required();

  RenderOptions options;
  CLI::App* render = app.add_subcommand("render", "draw a track as the editor shows it");
  render->add_option("FILE", input, "level file")->required();
  render->add_option("PICTURE", output, "PNG file to write")->required();
  render->add_option("--depth", options.depth, "depth that the camera looks at")
      ->check(CLI::Range(-1e6, 1e6));
  render->add_option("--frames", options.frames, "frames to run")->check(CLI::Range(1, 1'000'000));
  render->add_flag("--plain", options.plain, "one drawing call per face");

  std::string script;
  bool untilEnd = false;
  CLI::App* drive = app.add_subcommand("drive", "drive a track by a script of held keys");
  drive->add_option("FILE", input, "level file")->required();
  drive->add_option("SCRIPT", script, "lines of frames and keys, such as: 30 up+left")->required();
  drive->add_flag("--until-end", untilEnd, "stop when the run ends; status 3 unless it was won");

  SolveOptions solving{{}, search::Limits().steps, search::Limits().states};
  CLI::App* solve = app.add_subcommand("solve", "look for a drive that wins a track");
  solve->add_option("FILE", input, "level file")->required();
  solve->add_option("SCRIPT", solving.script, "file to write the winning keys to");
  solve->add_option("--steps", solving.steps, "steps of the car to try at most")
      ->check(CLI::Range(int64_t{1}, int64_t{1'000'000'000'000}));
  solve->add_option("--states", solving.states, "states to keep at most")
      ->check(CLI::Range(1, 100'000'000));
  std::vector<std::string> paths;
  VerifyOptions verifying;
  CLI::App* verify =
      app.add_subcommand("verify", "what is wrong with tracks, and whether they can be won");
  verify->add_option("PATH", paths, "level files, and folders of them")->required();
  verify->add_flag("--json", verifying.json, "as JSON");
  verify->add_option("--jobs", verifying.jobs, "tracks at a time")->check(CLI::Range(1, 256));

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    return app.exit(failure) == 0 ? kFine : kWrongUsage;
  }
  while (data.size() > 1 && data.ends_with('/')) data.pop_back();
  paths::InstallFolder(data);
  // A limit for file sizes is to fail like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  return Run([&] {
    if (info->parsed()) return Info(input, json);
    if (convert->parsed()) return Convert(input, output);
    if (solve->parsed()) return Solve(input, solving);
    if (drive->parsed()) return DriveTrack(input, script, untilEnd);
    if (verify->parsed()) return Verify(paths, verifying);
    return Render(input, output, options);
  });
}
