#include "check/rules.h"

namespace check {
namespace {

void CheckSize(const PieceName& piece, const Extent& box, Findings& findings) {
  constexpr std::pair<const char*, float Vector3::*> kAxes[] = {
      {"width", &Vector3::x}, {"height", &Vector3::y}, {"depth", &Vector3::z}};
  for (const auto& [name, axis] : kAxes) {
    const float size = box.size.*axis;
    if (size > 0) continue;
    findings.Add(Fault::NoSize, piece, box.corner,
                 std::string("has a ").append(name).append(" of ").append(Words(size)));
    return;
  }
}

template <typename Piece>
void CheckAll(const std::vector<Piece>& pieces, ObjectType kind, Findings& findings) {
  for (size_t i = 0; i < pieces.size(); ++i) {
    CheckSize({kind, static_cast<int32_t>(i)}, pieces[i].box, findings);
  }
}

}  // namespace

// A block without size gets one when it is read.
void CheckSizes(const drive::FrozenTrack& track, Findings& findings) {
  CheckAll(track.Platforms(), TypePlatform, findings);
  CheckAll(track.Ramps(), TypeRamp, findings);
}

}  // namespace check
