// What a click into the picture costs.
#include <algorithm>

#include "bench/bursts.h"
#include "bench/figures.h"
#include "bench/scenes.h"

namespace bench {
namespace {

constexpr int kColumns = 9, kRows = 7;
constexpr int kLeftButton = 1;

/// Milliseconds of a click at each point of a grid over the picture, the median of a few clicks.
std::vector<double> ClickTimes(BenchEditor& editor, Layout layout, int count,
                               const Report& report) {
  editor.Open(BlockTrack(layout, count));
  LookAtDepth(kSceneDepth);
  const PictureArea& picture = editor.form.controls.viewport;
  std::vector<double> times;
  for (int point = 0; point < kColumns * kRows; ++point) {
    const double column = point % kColumns + 0.5, row = point / kColumns + 0.5;  // NOLINT
    const auto x = static_cast<float>(picture.ScaleWidth() * column / kColumns);
    const auto y = static_cast<float>(picture.ScaleHeight() * row / kRows);
    times.push_back(
        MedianTime(report.Choose(5, 3), [&] { picture.UserPresses(kLeftButton, 0, x, y); }));
    picture.UserReleases();
  }
  return times;
}

}  // namespace

void PickFigures(BenchEditor& editor, const Report& report) {
  if (!report.Wants({"pick_32767_", "exponent_pick"})) return;
  const auto corridor = ClickTimes(editor, Layout::Corridor, kManyPieces, report);
  if (report.Wants({"pick_32767_"})) {
    auto all = ClickTimes(editor, Layout::View, kManyPieces, report);
    all.insert(all.end(), corridor.begin(), corridor.end());
    report.Figure("pick_32767_worst", *std::ranges::max_element(all), "ms");
    report.Figure("pick_32767_median", Median(std::move(all)), "ms");
  }
  if (!report.Wants({"exponent_pick"})) return;
  const auto few = ClickTimes(editor, Layout::Corridor, 1000, report);
  report.Figure("exponent_pick", GrowthExponent(Median(few), Median(corridor)), "-");
}

}  // namespace bench
