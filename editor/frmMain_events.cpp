#include "editor/frmMain.h"
#include "editor/hand/drag.h"
#include "editor/hand/wheel.h"
#include "editor/history/history.h"
#include "editor/history/undo_redo.h"
#include "editor/insert.h"
#include "editor/panel.h"
#include "editor/picking.h"
#include "editor/selection.h"
#include "files/FileIO.h"
#include "level/globals.h"

namespace {

/// Runs an insert command where it may run, then shows the new piece.
template <typename Add>
std::function<void()> Insert(Add add) {
  return [add] {
    if (Document.EditorMode == EditMode && add()) selection::ShowProperties();
  };
}

std::function<void()> InsertBlock(insert::BlockKind kind) {
  return Insert([kind] { return insert::AddBlock(kind); });
}

/// The one insert that leaves the panel's fields as they were.
void mnu_BouncePad_Click() {
  if (Document.EditorMode == EditMode && insert::AddBlock(insert::BlockKind::JumpPad)) {
    Controls().cmd_ramp.Enabled(false);
  }
}

/// A new platform always ends up paused, ready for editing.
bool AddPausedPlatform() {
  if (!insert::AddPlatform()) return false;
  panel::PausePlatforms();
  Controls().frmMain.SetFocus();
  return true;
}

void mnu_cut_Click() {
  selection::CopySelection(true);
  selection::ShowProperties();
}

void mnu_duplicate_Click() {
  if (Document.EditorMode != EditMode) return;
  const int32_t platforms = Document.PlatformCount;
  selection::DuplicateSelection();
  if (Document.PlatformCount > platforms) panel::PausePlatforms();
}

void mnu_Paste_Click() {
  const int32_t platforms = Document.PlatformCount;
  selection::PasteClipboard();
  selection::ShowProperties();
  if (Document.PlatformCount > platforms) {
    panel::PausePlatforms();
  } else if (Controls().cmd_pause.Caption() == kPauseCaption) {
    panel::cmd_pause_Click();
  }
}

}  // namespace

void frmMain::ConnectEvents() {
  MainControls& c = controls;
  c.frmMain.onUnload = [this] { Shutdown(); };
  c.frmMain.onKeyDown = [this](int16_t& key, int shift) { Form_KeyDown(key, shift); };
  c.frmMain.onKeyUp = [this](int16_t key, int) { Form_KeyUp(key); };
  c.VScroll1.onChange = [this] { VScroll1_Change(); };
  c.viewport.onMouseDown = [this](int button, int shift, float x, float y) {
    picking::MouseDown(button, shift, x, y);
    // Pieces go first.
    if (!Document.ObjectSelected && button == 1) drives.Click(x, y);
  };
  c.viewport.onMouseDrag = drag::Move;
  c.viewport.onMouseUp = drag::Release;
  c.viewport.onWheel = wheel::Turn;
  panel::ConnectEvents();
  ConnectFileAndModeItems();
  ConnectEditItems();
  ConnectInsertItems();
  ConnectOtherItems();
}

void frmMain::ConnectFileAndModeItems() {
  MainControls& c = controls;
  c.mnu_New.onClick = [this] {
    copies_.CopyNow();
    NewTrack();
  };
  c.mnu_load.onClick = [this] { NoteSaved(mnu_load_Click()); };
  c.mnu_save.onClick = [this] { NoteSaved(FileIO::SaveTrack()); };
  c.mnu_saveAS.onClick = [this] { NoteSaved(FileIO::SaveTrackDialog()); };
  c.mnu_Quit.onClick = [this] { Shutdown(); };
  c.mnu_playmode.onClick = [this] { mnu_playmode_Click(); };
  c.mnu_editmode.onClick = [this] { mnu_editmode_Click(); };
}

void frmMain::ConnectEditItems() {
  controls.mnu_copy.onClick = [] { selection::CopySelection(false); };
  controls.mnu_cut.onClick = mnu_cut_Click;
  controls.mnu_Paste.onClick = mnu_Paste_Click;
  controls.mnu_undo.onClick = [this] { TakeStep(history::UndoStep); };
  controls.mnu_redo.onClick = [this] { TakeStep(history::RedoStep); };
  controls.mnu_duplicate.onClick = mnu_duplicate_Click;
  history::steps.changed = history::ShowInMenu;
}

void frmMain::ConnectInsertItems() {
  using insert::BlockKind;
  MainControls& c = controls;
  c.mnu_block.onClick = InsertBlock(BlockKind::Plain);
  c.mnu_MovingPlatform.onClick = Insert(AddPausedPlatform);
  c.mnu_instantkill.onClick = InsertBlock(BlockKind::InstantKill);
  c.mnu_fallingBlock.onClick = InsertBlock(BlockKind::Falling);
  c.mnu_ice.onClick = InsertBlock(BlockKind::Ice);
  c.mnu_Ramp.onClick = Insert(insert::AddRamp);
  c.mnu_Endlevel.onClick = InsertBlock(BlockKind::WinLevel);
  c.mnu_BouncePad.onClick = mnu_BouncePad_Click;
  c.mnu_turbo.onClick = InsertBlock(BlockKind::TurboPad);
  c.mnu_building.onClick = InsertBlock(BlockKind::Building);
  c.mnu_Star.onClick = Insert(insert::AddStar);
}

void frmMain::ConnectOtherItems() {
  MainControls& c = controls;
  const auto backdrops = c.BackgroundItems();
  for (size_t item = 0; item < backdrops.size(); ++item) {
    backdrops[item]->onClick = [this, item] { ChooseBackdrop(item); };
  }
  c.mnu_normal.onClick = [this] { ChooseGravity(kNormalGravity); };
  c.mnu_low.onClick = [this] { ChooseGravity(kLowGravity); };
  c.mnu_checktrack.onClick = [this] { checks.Show(); };
  c.mnu_about.onClick = [this] { about.Show(); };
  c.mnu_Shortcut.onClick = [this] { mnu_Shortcut_Click(); };
}
