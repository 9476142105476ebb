// What frames of blocks cost, with every camera place another picture.
#include <optional>

#include "bench/bursts.h"
#include "bench/figures.h"
#include "bench/scenes.h"
#include "bench/schemes.h"

namespace bench {
namespace {

constexpr int kFew = 1000;

/// The comparisons of one scene.
class SceneFigures {
 public:
  SceneFigures(const Report& report, Layout layout, int count)
      : report_(report), layout_(layout), count_(count) {
    constexpr std::array kNames = {"corridor", "view", "small"};
    scene_ = std::string("_") + kNames[static_cast<size_t>(layout)] + "_" + std::to_string(count);
  }
  bool Wanted() const {
    return WantsTimes() || report_.Wants({"differing_pixels" + scene_, "floor_differing_pixels"});
  }
  /// Prints; returns in how many pixels the floor's pictures are not the editor's.
  int Measure(BenchEditor& editor);

 private:
  bool WantsTimes() const {
    return report_.Wants({"batched_floor" + scene_, "naive_batched_wall" + scene_,
                          "naive_batched_caller" + scene_, "plain_batched_wall" + scene_,
                          "batched_empty" + scene_, "batched" + scene_, "floor" + scene_,
                          "plain" + scene_, "naive" + scene_, "empty" + scene_,
                          "batched_caller" + scene_, "naive_caller" + scene_});
  }
  void MeasureTimes(Schemes& schemes) const;
  void PrintTimes(const std::vector<Variant>& variants) const;
  int ComparePictures(Schemes& schemes) const;

  const Report& report_;
  Layout layout_;
  int count_;
  std::string scene_;  ///< as names of figures end
};

int SceneFigures::Measure(BenchEditor& editor) {
  editor.Open(BlockTrack(layout_, count_));
  Schemes schemes(editor);
  if (WantsTimes()) MeasureTimes(schemes);
  return ComparePictures(schemes);
}

void SceneFigures::MeasureTimes(Schemes& schemes) const {
  std::vector<Variant> variants;
  const auto add = [&](const char* name, const Image& (Schemes::*draw)(int), int frames) {
    Variant& variant = variants.emplace_back();
    variant.name = name;
    variant.draw = [&schemes, draw](int frame) { (schemes.*draw)(frame); };
    variant.frames = frames;
  };
  const bool corridor = layout_ == Layout::Corridor, many = count_ == kManyPieces;
  add("batched", &Schemes::DrawBatched, 0);
  add("floor", &Schemes::DrawFloor, 0);
  if (many) add("plain", &Schemes::DrawPlain, 1);
  if (many && corridor) add("naive", &Schemes::DrawNaive, 2);
  if (count_ == kFew && corridor) add("empty", &Schemes::DrawEmpty, 0);
  RunInterleaved(variants, report_.Choose<Rounds>({3, 31, 12}, {1, 5, 2}));
  PrintTimes(variants);
}

void SceneFigures::PrintTimes(const std::vector<Variant>& variants) const {
  const Variant& batched = variants.front();
  for (const Variant& other : variants) {
    report_.Figure(other.name + scene_, MedianOf(other, &Times::wall), "ms");
    const double slower = MedianRatio(other, batched, &Times::wall);
    const double faster = MedianRatio(batched, other, &Times::wall);
    if (other.name == "plain") report_.Ratio("plain_batched_wall" + scene_, slower);
    if (other.name == "floor" || other.name == "empty") {
      report_.Ratio("batched_" + other.name + scene_, faster);
    }
    if (other.name != "naive") continue;
    report_.Ratio("naive_batched_wall" + scene_, slower);
    report_.Ratio("naive_batched_caller" + scene_, MedianRatio(other, batched, &Times::caller));
    report_.Figure("batched_caller" + scene_, MedianOf(batched, &Times::caller), "ms");
    report_.Figure("naive_caller" + scene_, MedianOf(other, &Times::caller), "ms");
  }
}

int SceneFigures::ComparePictures(Schemes& schemes) const {
  // Plain frames of a great track are slow.
  const int stride = count_ == kFew ? 1 : report_.Choose(Schemes::kPlaces - 1, Schemes::kPlaces);
  int plain = 0, floor = 0;
  for (int place = 0; place < Schemes::kPlaces; place += stride) {
    const Image batched = schemes.DrawBatched(place);
    plain += DifferingPixels(batched, schemes.DrawPlain(place));
    floor += DifferingPixels(batched, schemes.DrawFloor(place));
  }
  report_.Figure("differing_pixels" + scene_, plain, "pixels");
  return floor;
}

}  // namespace

void FrameFigures(BenchEditor& editor, const Report& report) {
  std::optional<int> differing;
  for (const Layout layout : {Layout::Corridor, Layout::View, Layout::Small}) {
    for (const int count : {kFew, 10000, kManyPieces}) {
      SceneFigures scene(report, layout, count);
      if (scene.Wanted()) differing = differing.value_or(0) + scene.Measure(editor);
    }
  }
  if (differing) report.Figure("floor_differing_pixels", *differing, "pixels");
}

}  // namespace bench
