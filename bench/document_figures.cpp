// What opening and saving cost.
#include <stdexcept>

#include "bench/bursts.h"
#include "bench/figures.h"
#include "bench/kinds.h"
#include "files/FileIO.h"
#include "render/device/DirectX.h"

namespace bench {
namespace {

void Check(const FileIO::Result& result) {
  if (!result.Ok()) throw std::runtime_error(result.message);
}

/// What the library of pictures and models knows when a track is opened.
enum class Library { Empty, Filled };

/// Milliseconds; the end of the track before is left out.
double OpenTime(const LevelFile& level, Library library, const Report& report) {
  const std::string bytes = SerializeLevel(level);
  std::vector<double> times;
  for (int run = 0; run < report.Choose(5, 2); ++run) {
    KeptTrack replaced;
    if (library == Library::Empty) DirectX::D3DX = DirectX::DX->CreateD3DX();
    const auto open = [&] { Check(FileIO::ReadLevelBytes(bytes, "the scene", &replaced)); };
    times.push_back(Time(open).wall);
  }
  return Median(std::move(times));
}

/// Milliseconds until the document's file is safely on the disk.
double SaveTime(const BenchEditor& editor, const Report& report) {
  const std::string path = editor.Folder() + "/saved.lvl";
  return MedianTime(report.Choose(9, 3), [&] { Check(FileIO::WriteLevel(path)); });
}

void OpenFigures(const Report& report) {
  double sum = 0;
  for (const NamedKind& kind : kKinds) {
    const std::string name = std::string("open_per_object_") + kind.name;
    if (!report.Wants({name, "open_per_object_mean"})) continue;
    const double time = OpenTime(KindTrack(kind.kind, kManyPieces), Library::Empty, report);
    const double microseconds = time * 1e3 / kManyPieces;
    report.Figure(name, microseconds, "us");
    sum += microseconds;
  }
  if (report.Wants({"open_per_object_mean"})) {
    report.Figure("open_per_object_mean", sum / kKinds.size(), "us");
  }
}

}  // namespace

void DocumentFigures(BenchEditor& editor, const Report& report) {
  OpenFigures(report);
  if (!report.Wants({"save_per_object", "exponent_open", "exponent_save"})) return;
  // Loading the pictures takes as long for few pieces: it would hide how the rest grows.
  const double openFew = OpenTime(BlockTrack(Layout::Corridor, 1000), Library::Filled, report);
  const double saveFew = SaveTime(editor, report);
  const double openMany =
      OpenTime(BlockTrack(Layout::Corridor, kManyPieces), Library::Filled, report);
  const double saveMany = SaveTime(editor, report);
  report.Figure("save_per_object", saveMany * 1e3 / kManyPieces, "us");
  report.Figure("exponent_open", GrowthExponent(openFew, openMany), "-");
  report.Figure("exponent_save", GrowthExponent(saveFew, saveMany), "-");
}

}  // namespace bench
