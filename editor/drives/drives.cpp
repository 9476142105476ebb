#include "editor/drives/drives.h"

#include <algorithm>
#include <cmath>

#include "editor/drives/drive_file.h"
#include "editor/history/history.h"
#include "level/globals.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"

namespace drives {
namespace {

/// Bars and menus tell their widgets of every call.
void Enable(MenuItem& item, bool enabled) {
  if (item.Enabled() != enabled) item.Enabled(enabled);
}

}  // namespace

Drives::Drives(MainControls& controls, std::function<void()> enterPlay)
    : seat([this](Attempt attempt) { memory.Keep(std::move(attempt)); }),
      controls_(controls),
      enterPlay_(std::move(enterPlay)) {
  for (MenuItem* item : {&controls.mnu_showdrive, &controls.mnu_finddrive, &controls.mnu_bestwin}) {
    item->onClick = [item] { item->Checked(!item->Checked()); };
  }
  controls.mnu_drivefromhere.onClick = [this] { DriveFromHere(); };
  controls.mnu_watchdrive.onClick = [this] { WatchDrive(); };
  controls.mnu_savedrive.onClick = [this] { SaveChosen(); };
}

const Attempt* Drives::Chosen() {
  TrackDrives& drives = memory.Present();
  if (Searches() && !controls_.mnu_showdrive.Checked()) return winning_.Found();
  if (controls_.mnu_bestwin.Checked() && drives.best) return &*drives.best;
  return drives.last ? &*drives.last : nullptr;
}

/// Another number for another track and another state of it.
uint64_t Drives::TrackVersion() {
  constexpr uint64_t kPrime = 0x100000001B3U;
  return history::steps.State() * kPrime + Document.TrackNumber;
}

/// Another number for another drive, too.
uint64_t Drives::Version() const {
  constexpr uint64_t kPrime = 0x100000001B3U;
  const uint64_t which = (controls_.mnu_bestwin.Checked() ? 1U : 0U) +
                         (controls_.mnu_showdrive.Checked() ? 2U : 0U) + (Searches() ? 4U : 0U);
  return (TrackVersion() * kPrime + memory.Changes()) * kPrime + which;
}

bool Drives::ShowsDrive() const {
  return controls_.mnu_showdrive.Checked() && Document.EditorMode == EditMode;
}

bool Drives::Searches() const {
  return controls_.mnu_finddrive.Checked() && Document.EditorMode == EditMode;
}

void Drives::UpdateMenu() {
  const bool possible = Document.EditorMode == EditMode && Chosen() != nullptr;
  for (MenuItem* item :
       {&controls_.mnu_drivefromhere, &controls_.mnu_watchdrive, &controls_.mnu_savedrive}) {
    Enable(*item, possible);
  }
  Enable(controls_.mnu_bestwin, memory.Present().best.has_value());
}

void Drives::Update() {
  UpdateMenu();
  std::vector<std::string> notes;
  try {
    if (ShowsDrive()) {
      notes.push_back(FollowDrive());
    } else {
      HideDrive();
    }
    if (Searches()) {
      notes.push_back(FollowSearch());
    } else {
      HideSearch();
    }
    PlaceGhost();
  } catch (const std::exception& failure) {
    // The picture goes on without it.
    HideDrive();
    HideSearch();
    ghost_.reset();
    notes = {failure.what()};
  }
  controls_.viewport.Notes(std::move(notes));
}

void Drives::HideDrive() {
  shown_.Clear();
  ribbon_.Hide();
}

void Drives::HideSearch() {
  winning_.Rest();
  foundRibbon_.Hide();
}

/// Shows the own drive; what there is to say about it.
std::string Drives::FollowDrive() {
  const Attempt* const chosen = Chosen();
  if (chosen == nullptr) {
    HideDrive();
    const std::string& why = memory.Present().unreadable;
    return why.empty() ? "No drive to show yet: press F3 and drive" : why;
  }
  if (shown_.Follow(*chosen, Version())) ribbon_.Show(shown_.Path(), shown_.OldRest());
  return shown_.Words();
}

/// The same for the drive that is looked for.
std::string Drives::FollowSearch() {
  if (winning_.Follow(TrackVersion())) {
    const Attempt* const found = winning_.Found();
    if (found != nullptr) {
      foundRibbon_.Show(found->path, {});
    } else {
      foundRibbon_.Hide();
    }
  }
  return winning_.Words();
}

/// Car and platforms are shown where they are when the drive comes to what the camera looks at.
void Drives::PlaceGhost() {
  ghost_.reset();
  if (!Document.PlatformsPaused) return;
  const float depth = DirectX::CameraTarget.z;
  const auto place = [&](const drive::FrozenTrack& track, const drive::Path& path) {
    if (!PassesDepth(path, depth)) return;
    const size_t frame = PointNearDepth(path, path.size(), depth);
    ghost_ = Ghost{&track, frame, path[frame].place};
  };
  if (ribbon_.Shown()) {
    place(shown_.Track(), shown_.Path());
  } else if (const Attempt* const found = winning_.Found(); found && foundRibbon_.Shown()) {
    place(winning_.Track(), found->path);
  }
}

FrameAdditions Drives::Additions() {
  if (!ribbon_.Shown() && !foundRibbon_.Shown()) return {};
  FrameAdditions additions;
  if (ghost_) {
    additions.platformX = [this](size_t i, const clsMovingPlatform&) {
      return ghost_->track->Platforms()[i].way.At(ghost_->frame).x;
    };
  }
  additions.afterPieces = [this] {
    // The marks stay in front of the ghost.
    if (ghost_) Player.DrawGhost(ghost_->place);
    if (foundRibbon_.Shown()) foundRibbon_.Draw();
    if (ribbon_.Shown()) ribbon_.Draw();
  };
  return additions;
}

void Drives::Click(float x, float y) {
  if (Document.EditorMode != EditMode) return;
  std::optional<float> depth;
  if (const auto point = ribbon_.Shown() ? ribbon_.PointAt(x, y) : std::nullopt) {
    depth = shown_.Path()[*point].place.z;
  } else if (const Attempt* const found = winning_.Found(); found && foundRibbon_.Shown()) {
    const auto other = foundRibbon_.PointAt(x, y);
    if (other) depth = found->path[*other].place.z;
  }
  if (!depth) return;
  ScrollBar& bar = controls_.VScroll1;
  bar.Value(bar.Maximum() -
            static_cast<int>(std::clamp<long>(std::lround(*depth), 0, bar.Maximum())));
  // After play the camera need not be where the bar says.
  if (bar.onChange) bar.onChange();
}

void Drives::DriveFromHere() {
  const Attempt* const chosen = Chosen();
  if (Document.EditorMode != EditMode || chosen == nullptr) return;
  shown_.Follow(*chosen, Version());
  shown_.Finish();
  const int frame = shown_.FrameNear(DirectX::CameraTarget.z);
  const auto length = static_cast<size_t>(frame) + 1;
  Beginning here{shown_.Track(),
                 StateAfter(shown_.Track(), shown_.Script(), frame),
                 drive::Beginning(shown_.Script(), frame),
                 {shown_.Path().begin(), shown_.Path().begin() + static_cast<ptrdiff_t>(length)}};
  enterPlay_();
  if (Document.EditorMode == PlayMode) seat.TakeFrom(std::move(here));
}

void Drives::WatchDrive() {
  const Attempt* const chosen = Chosen();
  if (Document.EditorMode != EditMode || chosen == nullptr) return;
  drive::KeyScript script = chosen->script;
  enterPlay_();
  if (Document.EditorMode == PlayMode) seat.Watch(std::move(script));
}

void Drives::SaveChosen() {
  if (const Attempt* const chosen = Chosen()) SaveDrive(chosen->script);
}

}  // namespace drives
