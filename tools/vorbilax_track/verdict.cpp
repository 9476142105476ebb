#include "tools/vorbilax_track/verdict.h"

namespace track_tool {
namespace {

using nlohmann::ordered_json;

/// The number with as few digits as tell it.
double Short(float value) { return std::stod(check::Words(value)); }

ordered_json ToJson(const TrackFinding& finding) {
  ordered_json kind, index;
  if (finding.piece) {
    kind = check::NameOf(finding.piece->kind);
    index = finding.piece->index;
  }
  const auto& [x, y, z] = finding.place;
  return {{"fault", finding.fault},
          {"kind", kind},
          {"index", index},
          {"place", {Short(x), Short(y), Short(z)}},
          {"text", finding.text}};
}

std::optional<check::PieceName> PieceOf(const ordered_json& json) {
  for (const ObjectType kind : {TypeBlock, TypeRamp, TypePlatform, TypeStar}) {
    if (json.at("kind") == check::NameOf(kind)) {
      return check::PieceName{kind, json.at("index").get<int32_t>()};
    }
  }
  return {};
}

}  // namespace

void Verdict::Refuse(const char* fault, const std::string& text, const Vector3& place) {
  words = text;
  findings.push_back({fault, {}, place, text});
}

ordered_json ToJson(const Verdict& verdict, const std::string& file) {
  ordered_json findings = ordered_json::array();
  for (const TrackFinding& finding : verdict.findings) findings.push_back(ToJson(finding));
  return {{"file", file}, {"won", verdict.won}, {"words", verdict.words}, {"findings", findings}};
}

Verdict FromJson(const ordered_json& json) {
  Verdict verdict{json.at("won").get<bool>(), json.at("words").get<std::string>(), {}};
  for (const ordered_json& finding : json.at("findings")) {
    const auto place = finding.at("place").get<std::array<float, 3>>();
    verdict.findings.push_back({finding.at("fault").get<std::string>(),
                                PieceOf(finding),
                                {place[0], place[1], place[2]},
                                finding.at("text").get<std::string>()});
  }
  return verdict;
}

std::string Dump(const ordered_json& json, int indent) {
  return json.dump(indent, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace track_tool
