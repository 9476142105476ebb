// What it costs to find out whether a track can be won.
#include <malloc.h>

#include <filesystem>
#include <stdexcept>

#include "bench/bursts.h"
#include "bench/figures.h"
#include "bench/roads.h"
#include "files/FileIO.h"
#include "platform/paths.h"
#include "search/drive_search.h"

namespace bench {
namespace {

double HeapMegabytes() {
  const auto info = mallinfo2();
  return (static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd)) / 1e6;
}

/// Sums and greatest values over several tracks.
struct Searches {
  int tracks = 0, won = 0;
  double slowest = 0, seconds = 0, steps = 0, states = 0, most = 0;

  void Add() {
    const auto track = drive::FrozenTrack::OfDocument();
    search::Result result;
    double peak = 0;
    const double before = HeapMegabytes();
    const search::Watch watch{
        nullptr, [&](const search::Effort&) { peak = std::max(peak, HeapMegabytes() - before); }};
    const double time =
        Time([&] { result = search::FindDrive(track, search::Limits(), watch); }).wall / 1000;
    ++tracks;
    won += result.outcome == search::Outcome::Won ? 1 : 0;
    slowest = std::max(slowest, time);
    seconds += time;
    steps += static_cast<double>(result.effort.steps);
    states += static_cast<double>(result.effort.states);
    most = std::max(most, peak);
  }

  void Tell(const Report& report, const std::string& name) const {
    report.Figure(name + "_won", won, ("of " + std::to_string(tracks)).c_str());
    report.Figure(name + "_slowest", slowest, "s");
    report.Figure(name + "_steps_per_second", steps / seconds, "1/s");
    report.Figure(name + "_states_per_second", states / seconds, "1/s");
    report.Figure(name + "_most_heap", most, "MB");
  }
};

void Shipped(const Report& report) {
  Searches searches;
  for (const auto& entry :
       std::filesystem::directory_iterator(paths::ProgramFolder() + "/levels")) {
    if (entry.path().extension() != ".lvl") continue;
    const FileIO::Result result = FileIO::ReadLevel(entry.path().string());
    if (!result.Ok()) throw std::runtime_error(result.message);
    searches.Add();
  }
  searches.Tell(report, "search_shipped");
}

void Roads(BenchEditor& editor, const Report& report, const std::string& name, int tracks,
           int sections) {
  Searches searches;
  for (int i = 1; i <= tracks; ++i) {
    editor.Open(Road(sections + (tracks > 3 ? i : 0), static_cast<uint32_t>(i)));
    searches.Add();
  }
  searches.Tell(report, name);
}

}  // namespace

void SearchFigures(BenchEditor& editor, const Report& report) {
  if (report.Wants({"search_shipped_"})) Shipped(report);
  if (report.Wants({"search_roads_40_"})) {
    Roads(editor, report, "search_roads_40", report.Choose(40, 10), 7);
  }
  if (report.Wants({"search_roads_of_300_"})) {
    Roads(editor, report, "search_roads_of_300", report.Choose(3, 1), 300);
  }
}

}  // namespace bench
