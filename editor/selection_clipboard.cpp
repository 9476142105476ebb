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

void CopyBlock(const clsblock& block) {
  CopyBox(block);
  Document.Clipboard.ClipActionCode = block.changeactioncode();
}

void CopyRamp(const clsRamp& ramp) {
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipTextureA = ramp.GetTextureA();
  clip.ClipTextureB = ramp.GetTextureB();
  CopyScales(ramp);
  clip.ClipRotation = ramp.GetRotation();
  clip.ClipActionCode = 0;
}

void CopyPlatform(const clsMovingPlatform& platform) {
  CopyBox(platform);
  ClipboardRecord& clip = Document.Clipboard;
  clip.ClipLoopBack = platform.MloopBack();
  clip.ClipSpeed = platform.Mspeed();
  clip.ClipDirection = platform.GetinitalMDir();
  clip.ClipDistance = platform.Mdist();
  clip.ClipActionCode = 0;
}

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

void PasteBlock(float z) {
  clsblock block;
  block.create(0, 0, z, 1, 1, 1);
  PasteBoxTextures(block);
  PasteBoxScales(block);
  PasteBoxStretch(block);
  block.changeactioncode(Document.Clipboard.ClipActionCode);
  AppendAndSelect(Document.Blocks, Document.BlockCount, std::move(block), TypeBlock).SelectBlock();
}

void PasteRamp(float z) {
  const ClipboardRecord& clip = Document.Clipboard;
  clsRamp ramp;
  ramp.create(0, 1, z);
  ramp.Texture(clip.ClipTextureA, "A", Document.TextureDir);
  ramp.Texture(clip.ClipTextureB, "B", Document.TextureDir);
  ramp.scaleX(ToInteger(clip.ClipScaleX));
  ramp.scaleY(ToInteger(clip.ClipScaleY));
  ramp.scaleZ(ToInteger(clip.ClipScaleZ));
  for (int turn = 0; turn < clip.ClipRotation; ++turn) ramp.rotate();
  AppendAndSelect(Document.Ramps, Document.RampCount, std::move(ramp), TypeRamp).SelectRamp();
}

void PastePlatform(float z) {
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
  AppendAndSelect(Document.Platforms, Document.PlatformCount, std::move(platform), TypePlatform)
      .SelectBlock();
  Controls().frmMain.SetFocus();
}

template <typename Object>
void Remove(std::vector<Object>& collection, int32_t& count) {
  collection.erase(collection.begin() + Document.SelectedIndex);
  --count;
}

/// Deleting inside the row puts every platform back to its start; the last one leaves the others.
void RemovePlatform() {
  const bool last = Document.SelectedIndex == Document.PlatformCount;
  Remove(Document.Platforms, Document.PlatformCount);
  if (last) return;
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.Xpos(platform.GetInitalXpos());
    platform.Ypos(platform.GetInitalYpos());
    platform.Zpos(platform.GetInitalZpos());
    platform.Mdir(platform.GetinitalMDir());
  }
}

/// Last index of the collection that a type code names.
int32_t CountOf(int32_t type) {
  switch (type) {
    case TypeRamp:
      return Document.RampCount;
    case TypePlatform:
      return Document.PlatformCount;
    case TypeStar:
      return Document.StarCount;
    default:
      return Document.BlockCount;
  }
}

}  // namespace

void CopySelection(bool cut) {
  if (!Document.ObjectSelected) return;
  switch (Document.SelectedType) {
    case TypeBlock:
      CopyBlock(Selected(Document.Blocks));
      break;
    case TypeRamp:
      CopyRamp(Selected(Document.Ramps));
      break;
    case TypePlatform:
      CopyPlatform(Selected(Document.Platforms));
      break;
    default:
      break;  // a star has nothing but its place, and that is not copied
  }
  Document.Clipboard.ClipType = static_cast<uint8_t>(Document.SelectedType);
  Document.ClipboardFull = true;
  if (cut) DeleteSelection();
}

void PasteClipboard() {
  if (!Document.ClipboardFull || !RoomForOneMore(CountOf(Document.Clipboard.ClipType))) return;
  const float z = insert::DepthAhead();
  switch (Document.Clipboard.ClipType) {
    case TypeBlock:
      PasteBlock(z);
      break;
    case TypeRamp:
      PasteRamp(z);
      break;
    case TypePlatform:
      PastePlatform(z);
      break;
    default:
      insert::AddStar();
      break;
  }
  ShowProperties();
}

void DeleteSelection() {
  if (!Document.ObjectSelected) return;
  switch (Document.SelectedType) {
    case TypeBlock:
      Remove(Document.Blocks, Document.BlockCount);
      break;
    case TypeRamp:
      Remove(Document.Ramps, Document.RampCount);
      break;
    case TypePlatform:
      RemovePlatform();
      break;
    default:
      Remove(Document.Stars, Document.StarCount);
      break;
  }
  Document.ObjectSelected = false;
}

}  // namespace selection
