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
  controls.mnu_showdrive.onClick = [&item = controls.mnu_showdrive] {
    item.Checked(!item.Checked());
  };
  controls.mnu_bestwin.onClick = [&item = controls.mnu_bestwin] { item.Checked(!item.Checked()); };
  controls.mnu_drivefromhere.onClick = [this] { DriveFromHere(); };
  controls.mnu_watchdrive.onClick = [this] { WatchDrive(); };
  controls.mnu_savedrive.onClick = [this] { SaveChosen(); };
}

const Attempt* Drives::Chosen() {
  TrackDrives& drives = memory.Present();
  if (controls_.mnu_bestwin.Checked() && drives.best) return &*drives.best;
  return drives.last ? &*drives.last : nullptr;
}

/// Another number for another track, another state of it, and another drive.
uint64_t Drives::Version() const {
  constexpr uint64_t kPrime = 0x100000001B3U;
  const uint64_t best = controls_.mnu_bestwin.Checked() ? 1 : 2;
  return ((history::steps.State() * kPrime + Document.TrackNumber) * kPrime + memory.Changes()) *
             3 +
         best;
}

bool Drives::ShowsDrive() const {
  return controls_.mnu_showdrive.Checked() && Document.EditorMode == EditMode;
}

void Drives::UpdateMenu() {
  const bool possible = Document.EditorMode == EditMode && Chosen() != nullptr;
  for (MenuItem* item :
       {&controls_.mnu_drivefromhere, &controls_.mnu_watchdrive, &controls_.mnu_savedrive}) {
    Enable(*item, possible);
  }
  Enable(controls_.mnu_bestwin, memory.Present().best.has_value());
}

void Drives::Hide() {
  shown_.Clear();
  ribbon_.Hide();
  ghostFrame_.reset();
}

void Drives::Update() {
  UpdateMenu();
  const Attempt* const chosen = ShowsDrive() ? Chosen() : nullptr;
  if (chosen == nullptr) {
    Hide();
    std::string why = memory.Present().unreadable;
    if (why.empty()) why = "No drive to show yet: press F3 and drive";
    controls_.viewport.Notes(ShowsDrive() ? std::vector{why} : std::vector<std::string>());
    return;
  }
  if (shown_.Follow(*chosen, Version())) {
    ribbon_.Show(shown_.Path(), shown_.OldRest());
    controls_.viewport.Notes({shown_.Words()});
  }
  PlaceGhost();
}

/// Car and platforms are shown where they are when the drive comes to what the camera looks at.
void Drives::PlaceGhost() {
  const float depth = DirectX::CameraTarget.z;
  ghostFrame_.reset();
  if (Document.PlatformsPaused && shown_.Passes(depth)) ghostFrame_ = shown_.FrameNear(depth);
}

FrameAdditions Drives::Additions() {
  if (!ribbon_.Shown()) return {};
  FrameAdditions additions;
  if (ghostFrame_) {
    additions.platformX = [this](size_t i, const clsMovingPlatform&) {
      return shown_.Track().Platforms()[i].way.At(static_cast<size_t>(*ghostFrame_)).x;
    };
  }
  additions.afterPieces = [this] {
    ribbon_.Draw();
    if (ghostFrame_) Player.DrawGhost(shown_.Path()[static_cast<size_t>(*ghostFrame_)].place);
  };
  return additions;
}

void Drives::Click(float x, float y) {
  if (!ShowsDrive() || !ribbon_.Shown()) return;
  const auto point = ribbon_.PointAt(x, y);
  if (!point) return;
  ScrollBar& bar = controls_.VScroll1;
  const long depth = std::lround(shown_.Path()[*point].place.z);
  bar.Value(bar.Maximum() - static_cast<int>(std::clamp<long>(depth, 0, bar.Maximum())));
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
