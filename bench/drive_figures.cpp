// What a drive without objects costs, against one through them.
#include <filesystem>
#include <stdexcept>

#include "bench/bursts.h"
#include "bench/driving.h"
#include "bench/figures.h"
#include "bench/scenes.h"
#include "drive/frozen_track.h"
#include "drive/key_script.h"
#include "drive/object_drive.h"
#include "platform/paths.h"
#include "platform/whole_file.h"

namespace bench {
namespace {

constexpr int kSteps = 20000;

std::vector<std::string> ShippedTracks() {
  std::vector<std::string> names;
  for (const auto& entry :
       std::filesystem::directory_iterator(paths::ProgramFolder() + "/levels")) {
    if (entry.path().extension() == ".lvl") names.push_back(entry.path().string());
  }
  return names;
}

drive::KeyScript ScriptBeside(const std::string& track) {
  std::string text;
  const std::string path = std::filesystem::path(track).replace_extension(".keys").string();
  const std::string failure = ReadWholeFile(path, text);
  if (!failure.empty()) throw std::runtime_error(path + ": " + failure);
  return drive::ParseScript(text);
}

/// Calls step(keys) for every frame of the script.
template <typename Step>
void EachFrame(const drive::KeyScript& script, Step step) {
  for (drive::KeyReader keys(script); !keys.AtEnd();) step(keys.Next());
}

/// Microseconds of a step with a shipped track's own drive, frozen and through the objects.
void ShippedSteps(const Report& report) {
  std::vector<double> frozen, objects, ratios;
  for (const std::string& file : ShippedTracks()) {
    const FileIO::Result result = FileIO::ReadLevel(file);
    if (!result.Ok()) throw std::runtime_error(result.message);
    const drive::KeyScript script = ScriptBeside(file);
    const int frames = FrameCount(script), runs = std::max(1, kSteps / frames);
    const auto track = drive::FrozenTrack::OfDocument();
    frozen.push_back(1000.0 / frames / runs * MedianTime(report.Choose(9, 3), [&] {
                       for (int run = 0; run < runs; ++run) {
                         drive::DriveState state;
                         EachFrame(script, [&](CarKeys keys) { track.Step(state, keys); });
                       }
                     }));
    drive::ObjectDrive drive;
    objects.push_back(1000.0 / frames * MedianTime(report.Choose(9, 3), [&] {
                        EachFrame(script, [&](CarKeys keys) { drive.Step(keys); });
                      }));
    ratios.push_back(objects.back() / frozen.back());
  }
  report.Figure("drive_frozen_step_shipped", *std::ranges::max_element(frozen), "us");
  report.Figure("drive_object_step_shipped", Median(objects), "us");
  report.Ratio("drive_objects_frozen_shipped", Median(ratios));
}

/// Microseconds of a step among so many pieces.
double StepAmong(const drive::FrozenTrack& track, int runs) {
  drive::DriveState begin;
  begin.car.position.y = 30;
  begin.car.position.z = kSceneDepth;
  return 1000.0 / kSteps * MedianTime(runs, [&] {
           drive::DriveState state;
           for (int i = 0; i < kSteps; ++i) {
             if (i % Driving::kFrames == 0) state = begin;
             track.Step(state, kUpKey);
           }
         });
}

void ManyPieces(BenchEditor& editor, const Report& report, const std::string& scene,
                const LevelFile& level, double pieces) {
  const std::string step = "drive_frozen_step_" + scene, freeze = "drive_freeze_per_piece_" + scene;
  if (!report.Wants({step, freeze})) return;
  editor.Open(level);
  drive::FrozenTrack track;
  const double time =
      MedianTime(report.Choose(9, 3), [&track] { track = drive::FrozenTrack::OfDocument(); });
  report.Figure(freeze, 1000 * time / pieces, "us");
  report.Figure(step, StepAmong(track, report.Choose(9, 3)), "us");
}

}  // namespace

void DriveFigures(BenchEditor& editor, const Report& report) {
  ManyPieces(editor, report, "blocks_32767", BlockTrack(Layout::Corridor, kManyPieces),
             kManyPieces);
  ManyPieces(editor, report, "every_kind_32767", EveryKindTrack(kManyPieces), 4.0 * kManyPieces);
  if (report.Wants({"drive_frozen_step_shipped", "drive_object_step_shipped",
                    "drive_objects_frozen_shipped"})) {
    ShippedSteps(report);
  }
}

}  // namespace bench
