#include "tools/vorbilax_track/judge.h"

#include <array>
#include <cstdio>
#include <filesystem>

#include "check/check.h"
#include "drive/key_script.h"
#include "drive/object_drive.h"
#include "drive/words.h"
#include "files/FileIO.h"
#include "platform/whole_file.h"

namespace track_tool {
namespace {

/// More than an hour: nobody drives as long.
constexpr int kMostFrames = 100'000;

std::string Where(const drive::Row& row) {
  std::array<char, 160> text{};
  std::snprintf(text.data(), text.size(), " at %.1f %.1f %.1f", double{row.x}, double{row.y},
                double{row.z});
  return text.data();
}

/// What the drive's last row is: the first of an event, or that of the script's end.
drive::Row LastRow(const drive::KeyScript& script) {
  drive::ObjectDrive driving;
  drive::Row row = RowOf(Car(), 0, false, 0, drive::Ending::None);
  for (drive::KeyReader keys(script); !keys.AtEnd() && row.frame < kMostFrames;) {
    row = driving.Step(keys.Next());
    if (*row.event != 0) break;
  }
  return row;
}

void Drive(const drive::KeyScript& script, Verdict& verdict) {
  const drive::Row row = LastRow(script);
  const drive::Ending ending = drive::EndingNamed(row.event);
  const std::string end = HowItEnds(ending, row.frame);
  verdict.won = ending == drive::Ending::Wins;
  if (verdict.won) {
    const auto stars = static_cast<size_t>(Document.StarCount + int64_t{1});
    verdict.words = "its drive " + end + drive::WithStars(static_cast<size_t>(row.stars), stars);
  } else {
    verdict.Refuse("lost-drive", "its drive wins no more: it " + end + Where(row),
                   {row.x, row.y, row.z});
  }
}

void AskSearch(const Search& search, Verdict& verdict) {
  const SearchAnswer answer = search(drive::FrozenTrack::OfDocument());
  verdict.won = answer.won;
  verdict.words = answer.words;
}

/// By the drive beside the track, or, where that is missing or no good any more, by a search.
void DriveOrSearch(const std::string& file, const Search& search, Verdict& verdict) {
  const auto path = std::filesystem::path(file).replace_extension("keys");
  std::error_code ignored;
  if (path == file || !std::filesystem::exists(path, ignored)) {
    AskSearch(search, verdict);
    verdict.words += " (no drive beside it)";
    return;
  }
  std::string text;
  std::string reason = ReadWholeFile(path.string(), text);
  try {
    if (reason.empty()) Drive(drive::ParseScript(text), verdict);
  } catch (const drive::ScriptError& failure) {
    reason = failure.what();
  }
  if (!reason.empty()) {
    verdict.Refuse("unreadable-drive", path.filename().string().append(": ").append(reason));
  }
  if (!verdict.won) AskSearch(search, verdict);
}

/// The reason without the path, which stands before it already.
std::string Reason(const std::string& message, const std::string& file) {
  return message.starts_with(file + ": ") ? message.substr(file.size() + 2) : message;
}

/// Reads the file into the document; empty, or why that failed.
std::string Read(const std::string& file, check::NamedFiles& names) {
  std::string bytes;
  std::string unreadable = ReadWholeFile(file, bytes);
  if (!unreadable.empty()) return unreadable;
  const FileIO::Result result = FileIO::ReadLevelBytes(bytes, file);
  if (!result.Ok()) return Reason(result.message, file);
  names = check::FilesOf(ParseLevel(bytes));
  return {};
}

}  // namespace

Verdict Judge(const std::string& file, const Search& search) {
  Verdict verdict;
  check::NamedFiles names;
  if (const std::string reason = Read(file, names); !reason.empty()) {
    verdict.Refuse("unreadable", reason);
    return verdict;
  }
  const auto findings = FindFaults(drive::FrozenTrack::OfDocument(), names);
  DriveOrSearch(file, search, verdict);
  for (const check::Finding& finding : findings) {
    verdict.findings.push_back({NameOf(finding.fault), finding.piece, finding.place, finding.text});
  }
  return verdict;
}

}  // namespace track_tool
