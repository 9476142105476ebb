#include <algorithm>

#include "editor/frmMain.h"
#include "editor/history/history.h"
#include "editor/safety/copy_files.h"
#include "editor/selection.h"
#include "level/backdrop.h"
#include "level/globals.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "render/device/DirectX.h"

namespace {

constexpr int kEyeBehindTarget = 18;

/// The one block of a new track.
clsblock StartBlock() {
  clsblock block;
  block.scaleX(2);
  block.scaleZ(2);
  block.scaleY(1);
  for (const char* face : {"A", "B", "C", "D"}) {
    block.Texture(kDefaultTexture, face, Document.TextureDir);
  }
  return block;
}

/// Whether the document's track is a new one already.
bool IsNewTrack(const clsblock& startBlock) {
  return Document.BlockCount == 0 && Document.RampCount == -1 && Document.PlatformCount == -1 &&
         Document.StarCount == -1 && Document.Gravity == kNormalGravity &&
         Document.BackgroundName == FixedText<50>(kDefaultBackdrop) &&
         !history::Differ({history::ChangedPiece<clsblock>{0, startBlock}});
}

}  // namespace

void frmMain::NewTrack() {
  // Made before anything is replaced: a missing texture must not cost the present track.
  clsblock block = StartBlock();
  const history::Command command("New Track");
  const bool isNew = IsNewTrack(block);
  KeptTrack replaced = TakeTrack();
  Document.TrackLoaded = true;
  Document.BlockCount = 0;
  Document.Gravity = kNormalGravity;
  Document.Blocks.push_back(std::move(block));
  Document.Origin.clear();

  Document.SelectedIndex = 0;
  Document.SelectedType = TypeBlock;
  Document.SelectedPlane = 1;
  Document.Blocks[0].SelectBlock();
  Document.PlatformsPaused = false;
  Document.ObjectSelected = true;

  CheckGravity(true);
  ShowBackdrop(kDefaultBackdrop);
  Document.BackgroundName = kDefaultBackdrop;
  CheckBackdrop();
  controls.VScroll1.Value(controls.VScroll1.Maximum());
  selection::ShowProperties();
  if (Document.EditorMode == PlayMode) {
    drives.seat.Abandon();
    return;
  }
  NextTrack();
  if (!isNew) history::steps.Replaced(std::move(replaced));
}

/// Drives on the track that stood here belong to it alone.
void frmMain::NextTrack() {
  static uint32_t tracks = 0;
  Document.TrackNumber = ++tracks;
}

FileIO::Result frmMain::EditedTrack(std::string& bytes) const {
  if (Document.EditorMode == EditMode) return FileIO::LevelBytes(bytes);
  bytes = temporaryTrack_.Bytes();
  return {};
}

void frmMain::NoteSaved(FileIO::Outcome outcome) {
  if (outcome != FileIO::Outcome::Done) return;
  history::steps.MarkSaved();
  copies_.Remember(Document.Origin);
  // A safety copy is opened to be saved under a name of its own.
  if (safety::IsCopy(Document.CurrentFileName)) Document.CurrentFileName.clear();
}

FileIO::Outcome frmMain::mnu_load_Click() {
  copies_.CopyNow();
  const history::Command command("Open Track");
  const bool played = Document.EditorMode == PlayMode;
  if (played) drives.seat.Leave();
  KeptTrack replaced;
  const FileIO::Outcome outcome = FileIO::OpenTrackDialog(&replaced);
  Document.EditorMode = EditMode;
  CheckMode(EditMode);
  // After a failed read the view stays where it was.
  if (outcome != FileIO::Outcome::Failed) DirectX::ResetCamera();
  if (outcome == FileIO::Outcome::Done) {
    ClearSelection();
    NextTrack();
    drives.memory.LookBeside(Document.CurrentFileName);
  }
  CheckGravity(Document.Gravity == kNormalGravity);
  // Play is left without a restore: what was edited is the step's other side.
  std::optional<KeptTrack> edited = temporaryTrack_.Forget();
  if (played && edited) replaced = std::move(*edited);
  if (played || outcome == FileIO::Outcome::Done) history::steps.Replaced(std::move(replaced));
  return outcome;
}

void frmMain::ChooseBackdrop(size_t item) {
  const history::Command command("Background");
  history::steps.TouchValues();
  ShowBackdrop(kBackdropFiles[item]);
  Document.BackgroundName = kBackdropFiles[item];
  CheckBackdrop();
}

void frmMain::ClearBackgroundChecks() {
  for (MenuItem* item : controls.BackgroundItems()) item->Checked(false);
}

void frmMain::CheckBackdrop() {
  ClearBackgroundChecks();
  const std::string name = Document.BackgroundName.Trimmed();
  for (size_t i = 0; i < kBackdropFiles.size(); ++i) {
    const bool shown = name == kBackdropFiles[i] || name == kBackdropTrackNames[i];
    if (shown) controls.BackgroundItems()[i]->Checked(true);
  }
}

void frmMain::TakeStep(void (*take)()) {
  take();
  CheckBackdrop();
  CheckGravity(Document.Gravity == kNormalGravity);
}

void frmMain::ChooseGravity(float gravity) {
  const history::Command command("Gravity");
  history::steps.TouchValues();
  Document.Gravity = gravity;
  controls.frmMain.SetFocus();
  CheckGravity(gravity == kNormalGravity);
}

void frmMain::CheckGravity(bool normal) {
  controls.mnu_normal.Checked(normal);
  controls.mnu_low.Checked(!normal);
}

void frmMain::VScroll1_Change() {
  if (!Document.TrackLoaded) return;
  const ScrollBar& bar = controls.VScroll1;
  const int16_t depth = ToInteger(bar.Maximum() - bar.Value() - kEyeBehindTarget);
  DirectX::CameraPosition.z = depth;
  DirectX::CameraTarget.z = ToSingle(depth + kEyeBehindTarget);
  DirectX::ApplyCamera();
}

void frmMain::TrackReplaced() {
  CheckBackdrop();
  CheckGravity(Document.Gravity == kNormalGravity);
  controls.VScroll1.Value(controls.VScroll1.Maximum());
}

void frmMain::mnu_Shortcut_Click() { services_.shell.Open(paths::InInstallFolder("\\readme.txt")); }
