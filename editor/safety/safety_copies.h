// Safety copies of the track, made without a question while it differs from its file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

#include "files/FileIO.h"
#include "platform/clock.h"

namespace safety {

class SafetyCopies {
 public:
  /// `trackBytes` gives the edited track as a level file, in play mode as it was when play began.
  /// While this object lives it is asked before every save.
  SafetyCopies(Clock& clock, std::function<FileIO::Result(std::string& bytes)> trackBytes);
  ~SafetyCopies();
  SafetyCopies(const SafetyCopies&) = delete;
  SafetyCopies& operator=(const SafetyCopies&) = delete;

  /// Every pass of the main loop: a copy when the last try is a minute old.
  void Tick();
  /// Before something that could cost work: a copy, unless the present state has one.
  void CopyNow();
  /// The same when nobody may be asked or told any more.
  void CopyQuietly();

  /// The track was read from, or written to, this file, whose content is known from now on.
  void Remember(const std::string& path);

 private:
  std::string Copy();
  void BeforeSave(const std::string& path);
  void Tell(const std::string& reason);

  Clock& clock_;
  std::function<FileIO::Result(std::string& bytes)> trackBytes_;
  int64_t lastTry_;
  uint64_t copiedState_ = 0;  ///< of the history
  bool told_ = false;         ///< that copies fail
  /// A hash of what each file held when it was last read or written here.
  std::unordered_map<std::string, size_t> known_;
};

}  // namespace safety
