// What it costs to record a frame, without drawing it.
#include "bench/bursts.h"
#include "bench/figures.h"
#include "bench/scenes.h"
#include "render/frame/RenderFrame.h"

namespace bench {
namespace {

/// Milliseconds of a frame with a moving camera, over the editor's own device, which drops it.
double RecordTime(const Report& report) {
  std::vector<Variant> record(1);
  record[0].draw = [](int frame) {
    LookAtDepth(kSceneDepth + static_cast<float>(frame % 8) / 2);
    RenderFrame();
  };
  RunInterleaved(record, {3, report.Choose(31, 5), 12});
  return MedianOf(record[0], &Times::wall);
}

}  // namespace

void RecordFigures(BenchEditor& editor, const Report& report) {
  const std::string everyKind = "record_corridor_every_kind_32767", exponent = "exponent_record";
  if (report.Wants({everyKind})) {
    editor.Open(EveryKindTrack(kManyPieces));
    report.Figure(everyKind, RecordTime(report), "ms");
  }
  if (!report.Wants({exponent})) return;
  editor.Open(BlockTrack(Layout::Corridor, 1000));
  const double few = RecordTime(report);
  editor.Open(BlockTrack(Layout::Corridor, kManyPieces));
  report.Figure(exponent, GrowthExponent(few, RecordTime(report)), "-");
}

}  // namespace bench
