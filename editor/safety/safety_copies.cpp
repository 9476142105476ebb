#include "editor/safety/safety_copies.h"

#include <optional>
#include <utility>

#include "editor/history/history.h"
#include "editor/safety/copy_files.h"
#include "platform/dialogs.h"
#include "platform/whole_file.h"

namespace safety {
namespace {

constexpr int64_t kSeconds = 60;

/// What the file holds; nothing when it cannot be read.
std::optional<std::string> ContentOf(const std::string& path) {
  std::string bytes;
  return ReadWholeFile(path, bytes).empty() ? std::optional(std::move(bytes)) : std::nullopt;
}

}  // namespace

SafetyCopies::SafetyCopies(Clock& clock,
                           std::function<FileIO::Result(std::string& bytes)> trackBytes)
    : clock_(clock), trackBytes_(std::move(trackBytes)), lastTry_(clock.Counter()) {
  FileIO::BeforeSave = [this](const std::string& path) { BeforeSave(path); };
}

SafetyCopies::~SafetyCopies() { FileIO::BeforeSave = nullptr; }

void SafetyCopies::Tick() {
  if (clock_.Counter() - lastTry_ >= kSeconds * clock_.Frequency()) CopyNow();
}

void SafetyCopies::CopyNow() { Tell(Copy()); }
void SafetyCopies::CopyQuietly() { Copy(); }

std::string SafetyCopies::Copy() {
  const history::History& steps = history::steps;
  if (!steps.DiffersFromSaved() || copiedState_ == steps.State()) return {};
  lastTry_ = clock_.Counter();
  std::string bytes;
  // A track without blocks is none that a file could hold.
  if (!trackBytes_(bytes).Ok()) return {};
  std::string reason = WriteCopy(Document.Origin, bytes);
  if (reason.empty()) copiedState_ = steps.State();
  return reason;
}

void SafetyCopies::Remember(const std::string& path) {
  const auto content = ContentOf(path);
  if (content) known_[path] = std::hash<std::string>()(*content);
}

void SafetyCopies::BeforeSave(const std::string& path) {
  const auto content = ContentOf(path);
  if (!content) return;
  const auto known = known_.find(path);
  const bool ours = known != known_.end() && known->second == std::hash<std::string>()(*content);
  if (!ours || Document.Origin != path) Tell(WriteCopy(path, *content));
}

void SafetyCopies::Tell(const std::string& reason) {
  if (reason.empty() || std::exchange(told_, true)) return;
  dialogs::ShowMessage("No safety copy could be written: " + reason);
}

}  // namespace safety
