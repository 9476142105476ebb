#include "check/check.h"

#include "check/rules.h"
#include "level/clsblock.h"

namespace check {
namespace {

void CheckWin(const drive::FrozenTrack& track, Findings& findings) {
  const bool found = std::ranges::any_of(track.Blocks(), [](const drive::FrozenBlock& block) {
    return block.kind == clsblock::WinLevel;
  });
  if (!found) findings.Add(Fault::NoWin, Car::kStart, "The track has no WIN block");
}

}  // namespace

Findings FindFaults(const drive::FrozenTrack& track, const NamedFiles& files) {
  Findings findings;
  CheckWin(track, findings);
  const float ground = CheckIdleCar(track, findings);
  CheckPlatformsAtStart(track, ground, findings);
  CheckStars(track, findings);
  const std::vector<PieceName> doubles = CheckDoubles(track, findings);
  CheckSizes(track, findings);
  CheckFiles(files, findings);
  CheckFlicker(track, doubles, findings);
  return findings;
}

Findings FindFaultsOfDocument() {
  return FindFaults(drive::FrozenTrack::OfDocument(), FilesOfDocument());
}

}  // namespace check
