// track_bench: prints what frames, files, clicks, play and pieces cost.
//   track_bench [--quick] [--only PREFIX]
//   track_bench --write-corridor FILE     writes the corridor of the most blocks as a level file
//   track_bench --write-road SECTIONS SEED FILE     writes a road that can be driven
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>

#include "bench/figures.h"
#include "bench/roads.h"
#include "bench/scenes.h"

namespace bench {

double GrowthExponent(double timeOfThousand, double timeOfMany) {
  return std::log(timeOfMany / timeOfThousand) / std::log(kManyPieces / 1000.0);
}

}  // namespace bench

namespace {

constexpr const char* kUsage =
    "usage: track_bench [--quick] [--only PREFIX] | --write-corridor FILE |\n"
    "                   --write-road SECTIONS SEED FILE\n";

int WriteTrack(const LevelFile& level, const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  file << SerializeLevel(level);
  file.close();
  if (file.good()) return 0;
  std::fprintf(stderr, "%s cannot be written\n", path.c_str());
  return 1;
}

int Measure(const bench::Report& report) {
  bench::BenchEditor editor;
  for (const auto group :
       {bench::FrameFigures, bench::RecordFigures, bench::DocumentFigures, bench::PickFigures,
        bench::PlayFigures, bench::DriveFigures, bench::SearchFigures, bench::MemoryFigures}) {
    group(editor, report);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  bool quick = false;
  std::string only;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const bool hasValue = i + 1 < argc;
    if (argument == "--quick") {
      quick = true;
    } else if (argument == "--only" && hasValue) {
      only = argv[++i];
    } else if (argument == "--write-corridor" && hasValue) {
      return WriteTrack(bench::BlockTrack(bench::Layout::Corridor, bench::kManyPieces),
                        argv[i + 1]);
    } else if (argument == "--write-road" && i + 3 < argc) {
      const auto seed = static_cast<uint32_t>(std::atoi(argv[i + 2]));
      return WriteTrack(bench::Road(std::atoi(argv[i + 1]), seed), argv[i + 3]);
    } else {
      std::fputs(kUsage, stderr);
      return 2;
    }
  }
  try {
    return Measure({only, quick});
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
