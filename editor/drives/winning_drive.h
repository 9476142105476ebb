// Looks for a drive that wins the track as it is now, beside the loop.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "drive/object_replay.h"
#include "editor/drives/attempt.h"
#include "platform/background_worker.h"
#include "search/drive_search.h"

namespace drives {

class WinningDrive {
 public:
  WinningDrive() = default;
  ~WinningDrive() { worker_.Stop(); }
  WinningDrive(const WinningDrive&) = delete;
  WinningDrive& operator=(const WinningDrive&) = delete;

  /// Every frame in edit mode: `version` names the state of the track; for another one the search
  /// begins anew. True when there is something new to show.
  bool Follow(uint64_t version);
  /// Nobody looks: a search that runs is given up.
  void Rest();

  std::string Words() const;
  /// The drive that was found and confirmed; null when there is none.
  const Attempt* Found() const { return found_ ? &*found_ : nullptr; }
  const drive::FrozenTrack& Track() const { return track_; }

 private:
  /// What the search came to; shared with the thread that searches.
  struct Answer {
    std::mutex mutex;
    std::optional<search::Result> result;
  };

  void Search();
  bool TakeAnswer();
  bool Confirm();
  void Show(const search::Result& result);

  std::optional<uint64_t> version_;
  drive::FrozenTrack track_;
  std::shared_ptr<Answer> answer_;
  std::map<uint64_t, search::Result> known_;  ///< of the versions before; undo leads back to them
  std::optional<search::Result> shown_;
  std::optional<Attempt> found_;
  std::optional<search::Result> unconfirmed_;
  std::unique_ptr<drive::ObjectReplay> replay_;
  BackgroundWorker worker_;  ///< last: it ends before what it works with
};

}  // namespace drives
