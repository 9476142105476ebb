// Drives in the editor: the Drive menu, the ribbon in the edit view, and the seat in play mode.
#pragma once

#include <functional>

#include "editor/drives/drive_memory.h"
#include "editor/drives/seat.h"
#include "editor/drives/shown_drive.h"
#include "editor/drives/winning_drive.h"
#include "editor/main_controls.h"
#include "editor/ribbon/ribbon.h"
#include "render/frame/RenderFrame.h"

namespace drives {

class Drives {
 public:
  /// `enterPlay` enters play mode where that is possible.
  Drives(MainControls& controls, std::function<void()> enterPlay);

  Seat seat;
  DriveMemory memory;

  /// Before every frame: what is shown follows the track.
  void Update();
  /// What the frame shows beyond the track.
  FrameAdditions Additions();
  /// A click that met no piece: the camera goes where it met the ribbon.
  void Click(float x, float y);

 private:
  /// The drive that the menu is about; null when there is none.
  const Attempt* Chosen();
  static uint64_t TrackVersion();
  uint64_t Version() const;
  void UpdateMenu();
  bool ShowsDrive() const;
  bool Searches() const;
  void HideDrive();
  void HideSearch();
  std::string FollowDrive();
  std::string FollowSearch();
  void PlaceGhost();

  void DriveFromHere();
  void WatchDrive();
  void SaveChosen();

  MainControls& controls_;
  std::function<void()> enterPlay_;
  ShownDrive shown_;
  WinningDrive winning_;
  ribbon::Ribbon ribbon_{ribbon::kOwnDrive}, foundRibbon_{ribbon::kFoundDrive};
  /// Where the drive that is shown is when it comes to what the camera looks at.
  struct Ghost {
    const drive::FrozenTrack* track;
    size_t frame;
    Vector3 place;
  };
  std::optional<Ghost> ghost_;  ///< while platforms stand
};

}  // namespace drives
