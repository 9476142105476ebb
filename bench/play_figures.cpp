// What play costs without its pictures: a step, and its beginning and end.
#include <stdexcept>

#include "bench/bursts.h"
#include "bench/driving.h"
#include "bench/figures.h"
#include "bench/scenes.h"
#include "editor/temporary_track.h"

namespace bench {
namespace {

void Check(const FileIO::Result& result) {
  if (!result.Ok()) throw std::runtime_error(result.message);
}

/// Milliseconds of one step.
double StepTime(BenchEditor& editor, const LevelFile& level, const Report& report) {
  editor.Open(level);
  const Driving driving;
  std::vector<double> times;
  for (int run = 0; run < report.Choose(9, 3); ++run) {
    Driving::PlaceCar();
    Driving::Step();
    const Times burst = Time([] {
      for (int frame = 0; frame < Driving::kFrames; ++frame) Driving::Step();
    });
    times.push_back(burst.wall / Driving::kFrames);
  }
  return Median(std::move(times));
}

void StepFigures(BenchEditor& editor, const Report& report) {
  const std::string blocks = "step_blocks_32767", everyKind = "step_every_kind_32767";
  if (report.Wants({blocks, "exponent_step"})) {
    const double few = StepTime(editor, BlockTrack(Layout::Corridor, 1000), report);
    const double many = StepTime(editor, BlockTrack(Layout::Corridor, kManyPieces), report);
    report.Figure(blocks, many, "ms");
    report.Figure("exponent_step", GrowthExponent(few, many), "-");
  }
  if (!report.Wants({everyKind})) return;
  report.Figure(everyKind, StepTime(editor, EveryKindTrack(kManyPieces), report), "ms");
}

void Drive() {
  const Driving driving;
  for (int frame = 0; frame < Driving::kFrames; ++frame) Driving::Step();
}

void ModeFigures(BenchEditor& editor, const Report& report) {
  if (!report.Wants({"enter_play_32767", "leave_play_32767", "restart_32767"})) return;
  editor.Open(BlockTrack(Layout::Corridor, kManyPieces));
  std::vector<double> enter, restart, leave;
  for (int run = 0; run < report.Choose(5, 2); ++run) {
    TemporaryTrack track;
    enter.push_back(Time([&] { Check(track.Enter()); }).wall);
    Drive();
    restart.push_back(Time([&] { Check(track.Restart()); }).wall);
    Drive();
    leave.push_back(Time([&] { Check(track.Leave()); }).wall);
  }
  report.Figure("enter_play_32767", Median(std::move(enter)), "ms");
  report.Figure("restart_32767", Median(std::move(restart)), "ms");
  report.Figure("leave_play_32767", Median(std::move(leave)), "ms");
}

}  // namespace

void PlayFigures(BenchEditor& editor, const Report& report) {
  StepFigures(editor, report);
  ModeFigures(editor, report);
}

}  // namespace bench
