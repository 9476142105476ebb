// Drives in the editor: the Drive menu, the ribbon in the edit view, and the seat in play mode.
#pragma once

#include <functional>

#include "editor/drives/drive_memory.h"
#include "editor/drives/seat.h"
#include "editor/drives/shown_drive.h"
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
  uint64_t Version() const;
  void UpdateMenu();
  void Hide();
  bool ShowsDrive() const;
  void PlaceGhost();

  void DriveFromHere();
  void WatchDrive();
  void SaveChosen();

  MainControls& controls_;
  std::function<void()> enterPlay_;
  ShownDrive shown_;
  ribbon::Ribbon ribbon_{ribbon::kOwnDrive};
  std::optional<int> ghostFrame_;  ///< of the shown drive, while platforms stand
};

}  // namespace drives
