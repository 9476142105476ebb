#include "editor/frmMain.h"
#include "editor/selection.h"
#include "level/globals.h"
#include "platform/dialogs.h"
#include "play/play_frame.h"
#include "render/DirectX.h"

void frmMain::mnu_playmode_Click() {
  if (Document.EditorMode != EditMode) return;
  FileIO::Result result = temporaryTrack_.Save();
  // Play starts from the track exactly as a file read produces it.
  if (result.Ok()) result = temporaryTrack_.Restore();
  if (!result.Ok()) {
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
}

void frmMain::RestoreTrack() {
  const FileIO::Result result = temporaryTrack_.Restore();
  if (!result.Ok()) dialogs::ShowMessage(result.message);
}

void frmMain::mnu_editmode_Click() {
  if (Document.EditorMode != PlayMode) return;
  RestoreTrack();
  Document.EditorMode = EditMode;
  CheckMode(EditMode);
  ClearSelection();
  DirectX::ResetCamera();
}

void frmMain::CheckMode(int32_t mode) {
  controls.mnu_editmode.Checked(mode == EditMode);
  controls.mnu_playmode.Checked(mode == PlayMode);
}

void frmMain::ClearSelection() {
  selection::DeselectCurrent();
  Document.ObjectSelected = false;
  selection::ShowProperties();
}
