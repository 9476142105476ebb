// What is to be said of one track.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "check/findings.h"

namespace track_tool {

struct TrackFinding {
  std::string fault;  ///< a word for programs
  std::optional<check::PieceName> piece;
  Vector3 place;
  std::string text;
};

struct Verdict {
  bool won = false;
  std::string words;  ///< whether it can be won
  std::vector<TrackFinding> findings;

  /// A finding about the track as a whole that is all that can be said.
  void Refuse(const char* fault, const std::string& text, const Vector3& place = {});
};

nlohmann::ordered_json ToJson(const Verdict& verdict, const std::string& file);
/// Throws nlohmann::json::exception for anything else than what ToJson has made.
Verdict FromJson(const nlohmann::ordered_json& json);
/// As text on one line; what is no UTF-8 is replaced.
std::string Dump(const nlohmann::ordered_json& json, int indent = -1);

}  // namespace track_tool
