#include "editor/insert.h"
#include "editor/main_controls.h"
#include "editor/selection_state.h"
#include "platform/numbers.h"

namespace selection {
namespace {

template <typename Object>
void CopyScales(const Object& object) {
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipScaleX = ToLong(object.scaleX());
  clip.ClipScaleY = ToLong(object.scaleY());
  clip.ClipScaleZ = ToLong(object.scaleZ());
}

/// What a block and a moving platform have in common.
void CopyBox(const BoxObject& box) {
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipTextureA = box.GetTextureA();
  clip.ClipTextureB = box.GetTextureB();
  clip.ClipTextureC = box.GetTextureC();
  clip.ClipTextureD = box.GetTextureD();
  CopyScales(box);
  clip.ClipAlignTop = box.TextAlignTop();
  clip.ClipAlignSide = box.TextAlignSide();
}

void Copy(const clsblock& block) {
  CopyBox(block);
  Document.Clipboard.ClipActionCode = block.changeactioncode();
}

void Copy(const clsRamp& ramp) {
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipTextureA = ramp.GetTextureA();
  clip.ClipTextureB = ramp.GetTextureB();
  CopyScales(ramp);
  clip.ClipRotation = ramp.GetRotation();
  clip.ClipActionCode = 0;
}

void Copy(const clsMovingPlatform& platform) {
  CopyBox(platform);
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipLoopBack = platform.MloopBack();
  clip.ClipSpeed = platform.Mspeed();
  clip.ClipDirection = platform.GetinitalMDir();
  clip.ClipDistance = platform.Mdist();
  clip.ClipActionCode = 0;
}

/// A star has nothing but its place, and that is not copied.
void Copy(const clsStar&) {}

template <typename Box>
void PasteBoxTextures(Box& box) {
  const ClipboardRecord& clip = Document.Clipboard;
  box.Texture(clip.ClipTextureA, "A", Document.TextureDir);
  box.Texture(clip.ClipTextureB, "B", Document.TextureDir);
  box.Texture(clip.ClipTextureC, "C", Document.TextureDir);
  box.Texture(clip.ClipTextureD, "D", Document.TextureDir);
}

void PasteBoxScales(BoxObject& box) {
  const ClipboardRecord& clip = Document.Clipboard;
  box.scaleX(ToSingle(clip.ClipScaleX));
  box.scaleY(ToSingle(clip.ClipScaleY));
  box.scaleZ(ToSingle(clip.ClipScaleZ));
}

void PasteBoxStretch(BoxObject& box) {
  box.AlignTexureCoords(0, Document.Clipboard.ClipAlignTop);
  box.AlignTexureCoords(1, Document.Clipboard.ClipAlignSide);
}

void Paste(PieceKind<clsblock>, float z) {
  clsblock block;
  block.create(0, 0, z, 1, 1, 1);
  PasteBoxTextures(block);
  PasteBoxScales(block);
  PasteBoxStretch(block);
  block.changeactioncode(Document.Clipboard.ClipActionCode);
  AppendAndSelect(std::move(block));
}

void Paste(PieceKind<clsRamp>, float z) {
  const ClipboardRecord& clip = Document.Clipboard;
  clsRamp ramp;
  ramp.create(0, 1, z);
  ramp.Texture(clip.ClipTextureA, "A", Document.TextureDir);
  ramp.Texture(clip.ClipTextureB, "B", Document.TextureDir);
  ramp.scaleX(ToInteger(clip.ClipScaleX));
  ramp.scaleY(ToInteger(clip.ClipScaleY));
  ramp.scaleZ(ToInteger(clip.ClipScaleZ));
  for (int turn = 0; turn < clip.ClipRotation; ++turn) ramp.rotate();
  AppendAndSelect(std::move(ramp));
}

void Paste(PieceKind<clsMovingPlatform>, float z) {
  const ClipboardRecord& clip = Document.Clipboard;
  clsMovingPlatform platform;
  platform.create(0, 0, z);
  PasteBoxScales(platform);
  PasteBoxTextures(platform);
  PasteBoxStretch(platform);
  platform.Mdir(ToByte(clip.ClipDirection));
  platform.MloopBack(clip.ClipLoopBack);
  platform.Mdist(ToByte(clip.ClipDistance));
  platform.Mspeed(ToByte(clip.ClipSpeed));
  platform.Zpos(z);  // where it starts, which create leaves alone
  AppendAndSelect(std::move(platform));
  Controls().frmMain.SetFocus();
}

void Paste(PieceKind<clsStar>, float) { insert::AddStar(); }

template <typename Kind>
void Remove(Kind kind) {
  const auto piece = kind.All().begin() + Document.SelectedIndex;
  history::steps.Removed<typename Kind::Piece>(Document.SelectedIndex, std::move(*piece));
  kind.All().erase(piece);
  --kind.Count();
}

/// Deleting inside the row puts every platform back to its start; the last one leaves the others.
void Remove(PieceKind<clsMovingPlatform> kind) {
  const bool last = Document.SelectedIndex == kind.Count();
  for (int32_t i = 0; !last && i <= kind.Count(); ++i) {
    if (i != Document.SelectedIndex) history::steps.Touch<clsMovingPlatform>(i);
  }
  Remove<>(kind);
  if (last) return;
  for (clsMovingPlatform& platform : kind.Pieces()) {
    platform.Xpos(platform.GetInitalXpos());
    platform.Ypos(platform.GetInitalYpos());
    platform.Zpos(platform.GetInitalZpos());
    platform.Mdir(platform.GetinitalMDir());
  }
}

/// How far behind a piece the next one stands.
double DepthOf(const BoxObject& box) { return box.scaleZ(); }
double DepthOf(const clsRamp& ramp) { return ramp.scaleZ(); }
double DepthOf(const clsStar&) { return 1; }

/// A platform starts anew, wherever the other one is now.
void StartAt(clsMovingPlatform& copy, const clsMovingPlatform& piece, double z) {
  copy.Xpos(piece.GetInitalXpos());
  copy.Ypos(piece.GetInitalYpos());
  copy.Zpos(ToSingle(z));
  copy.Mdir(piece.GetinitalMDir());
}
template <typename Piece>
void StartAt(Piece& copy, const Piece&, double z) {
  copy.Zpos(ToLong(z));
}

template <typename Piece>
void Duplicate(const Piece& piece) {
  if (!RoomForOneMore(PieceKind<Piece>::Count())) return;
  Piece copy = piece;
  StartAt(copy, piece, static_cast<double>(piece.Zpos()) + DepthOf(piece));
  AppendAndSelect(std::move(copy));
}

}  // namespace

void CopySelection(bool cut) {
  if (!Document.ObjectSelected) return;
  const history::Command command("Cut");
  VisitSelected([](const auto& piece) { Copy(piece); });
  Document.Clipboard.ClipType = static_cast<uint8_t>(Document.SelectedType);
  Document.ClipboardFull = true;
  if (cut) DeleteSelection();
}

void PasteClipboard() {
  if (!Document.ClipboardFull) return;
  const history::Command command("Paste");
  VisitKind(Document.Clipboard.ClipType, [](auto kind) {
    if (!RoomForOneMore(kind.Count())) return;
    Paste(kind, insert::DepthAhead());
    ShowProperties();
  });
}

void DuplicateSelection() {
  if (!Document.ObjectSelected) return;
  const history::Command command("Duplicate");
  // The collection may move its pieces when it grows.
  VisitSelected([](auto& piece) { Duplicate(piece); });
  ShowProperties();
}

void DeleteSelection() {
  if (!Document.ObjectSelected) return;
  const history::Command command("Delete");
  VisitKind(Document.SelectedType, [](auto kind) { Remove(kind); });
  Document.ObjectSelected = false;
}

}  // namespace selection
