#include "editor/frmMain.h"
#include "editor/history/undo_redo.h"
#include "editor/selection.h"
#include "level/globals.h"
#include "platform/dialogs.h"
#include "play/play_frame.h"
#include "render/device/DirectX.h"

void frmMain::mnu_playmode_Click() {
  if (Document.EditorMode != EditMode) return;
  copies_.CopyNow();
  // What is kept aside has no mark, should it come back.
  selection::DeselectCurrent();
  const FileIO::Result result = temporaryTrack_.Enter();
  if (!result.Ok()) {
    selection::ShowProperties();
    dialogs::ShowMessage(result.message);
    return;
  }
  Document.EditorMode = PlayMode;
  CheckMode(PlayMode);
  StartPlay();
}

void frmMain::StartPlay() {
  ClearSelection();
  Document.PlatformsPaused = false;
  play::Start();
  drives.seat.TakeStart();
}

void frmMain::mnu_editmode_Click() {
  if (Document.EditorMode != PlayMode) return;
  drives.seat.Leave();
  ReturnToEditing(temporaryTrack_.Leave());
}

bool frmMain::RestartTrack() {
  const FileIO::Result result = temporaryTrack_.Restart();
  if (!result.Ok()) {
    ReturnToEditing(result);
    return false;
  }
  drives.seat.TrackRestored();
  return true;
}

void frmMain::ReturnToEditing(const FileIO::Result& restored) {
  Document.EditorMode = EditMode;
  CheckMode(EditMode);
  ClearSelection();
  TrackReplaced();  // the edited pieces may have come back without a read
  DirectX::ResetCamera();
  if (!restored.Ok()) dialogs::ShowMessage(restored.message);
}

void frmMain::CheckMode(int32_t mode) {
  controls.mnu_editmode.Checked(mode == EditMode);
  controls.mnu_playmode.Checked(mode == PlayMode);
  controls.mnu_checktrack.Enabled(mode == EditMode);
  history::ShowInMenu();
}

void frmMain::ClearSelection() {
  selection::DeselectCurrent();
  Document.ObjectSelected = false;
  selection::ShowProperties();
}
