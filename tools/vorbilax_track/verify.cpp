#include <unistd.h>

#include <cstdio>
#include <optional>

#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/headless.h"
#include "tools/vorbilax_track/judge.h"
#include "tools/vorbilax_track/track_paths.h"
#include "tools/vorbilax_track/workers.h"

namespace track_tool {
namespace {

using nlohmann::ordered_json;

class NoDialogs : public StderrDialogs {
 public:
  void ShowMessage(const std::string&, const std::string&) override {}
};

/// Tells on a terminal how far it is.
class Progress {
 public:
  explicit Progress(size_t all) : all_(all), shown_(isatty(STDERR_FILENO) != 0) {}
  void Show(size_t done) const {
    if (shown_) std::fprintf(stderr, "\r%zu of %zu ...", done, all_);
  }
  void Clear() const {
    if (shown_) std::fputs("\r\x1B[K", stderr);
  }

 private:
  size_t all_;
  bool shown_;
};

/// Gathers the verdicts as they come and tells them in the order of the tracks.
class Report {
 public:
  Report(const std::vector<std::string>& tracks, bool json)
      : tracks_(tracks), verdicts_(tracks.size()), progress_(tracks.size()), json_(json) {
    progress_.Show(0);
  }

  void Add(size_t index, const Handed& handed) {
    verdicts_[index] = VerdictOf(handed);
    progress_.Clear();
    for (; told_ < verdicts_.size() && verdicts_[told_]; ++told_) Tell(told_);
    progress_.Show(++done_);
  }
  int End() const {
    progress_.Clear();
    if (json_) std::printf("%s\n", Dump(array_, 2).c_str());
    return status_;
  }

 private:
  static Verdict VerdictOf(const Handed& handed) {
    Verdict verdict;
    if (handed.death.empty()) return FromJson(ordered_json::parse(handed.bytes));
    verdict.Refuse("died", "its check died: " + handed.death);
    return verdict;
  }
  void Tell(size_t index) {
    const Verdict& verdict = *verdicts_[index];
    if (!verdict.findings.empty()) {
      status_ = kBadInput;
    } else if (!verdict.won && status_ == kFine) {
      status_ = kNotWon;
    }
    if (json_) {
      array_.push_back(ToJson(verdict, tracks_[index]));
    } else {
      Print(tracks_[index], verdict);
    }
  }
  static void Print(const std::string& file, const Verdict& verdict) {
    std::printf("%s: %s\n", file.c_str(), verdict.words.c_str());
    for (const TrackFinding& finding : verdict.findings) {
      if (finding.text != verdict.words) std::printf("  %s\n", finding.text.c_str());
    }
    std::fflush(stdout);
  }

  const std::vector<std::string>& tracks_;
  std::vector<std::optional<Verdict>> verdicts_;
  Progress progress_;
  bool json_;
  ordered_json array_ = ordered_json::array();
  size_t told_ = 0, done_ = 0;
  int status_ = kFine;
};

}  // namespace

int Verify(const std::vector<std::string>& paths, const VerifyOptions& options) {
  const std::vector<std::string> tracks = TracksIn(paths);
  HeadlessEditor editor;
  if (!editor.Start()) return kBadInput;
  HeadlessEditor::LoadCar();
  NoDialogs noDialogs;
  const auto judge = [&](size_t index) {
    dialogs::Use(&noDialogs);
    return Dump(ToJson(Judge(tracks[index], options.search), {}));
  };
  Report report(tracks, options.json);
  RunWorkers(tracks.size(), options.jobs, judge,
             [&report](size_t index, const Handed& handed) { report.Add(index, handed); });
  return report.End();
}

}  // namespace track_tool
