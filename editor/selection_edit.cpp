#include "editor/main_controls.h"
#include "editor/selection_state.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"

namespace selection {
namespace {

bool Inside(const UpDown& range, double value) {
  return value >= range.Minimum() && value <= range.Maximum();
}

void MoveBlock(clsblock& block, int32_t dx, int32_t dy, int32_t dz) {
  const MainControls& c = Controls();
  const double x = double{block.Xpos()} + dx, y = double{block.Ypos()} + dy;
  if (Inside(c.UpDownX, x)) block.Xpos(ToSingle(x));
  if (Inside(c.UpDownY, y)) block.Ypos(ToSingle(y));
  const double z = static_cast<double>(block.Zpos()) + dz;
  if (Inside(c.UpDownZ, z)) block.Zpos(ToLong(z));
}

/// For ramps and stars, whose places are whole numbers without a range.
template <typename Object>
void MoveWhole(Object& object, int32_t dx, int32_t dy, int32_t dz) {
  object.Xpos(ToLong(static_cast<double>(object.Xpos()) + dx));
  object.Ypos(ToLong(static_cast<double>(object.Ypos()) + dy));
  object.Zpos(ToLong(static_cast<double>(object.Zpos()) + dz));
}

/// False, after a message, while platforms run.
bool PlatformsMayChange() {
  if (!Document.PlatformsPaused) dialogs::ShowMessage(kPauseFirstText);
  return Document.PlatformsPaused;
}

void MovePlatform(clsMovingPlatform& platform, int32_t dx, int32_t dy, int32_t dz) {
  if (!PlatformsMayChange()) return;
  platform.Xpos(ToSingle(double{platform.Xpos()} + dx));
  platform.Ypos(ToSingle(double{platform.Ypos()} + dy));
  platform.Zpos(ToSingle(double{platform.Zpos()} + dz));
}

template <typename Size, typename Object>
void Resize(Object& object, int32_t width, int32_t height, int32_t depth) {
  if (width > 0) object.scaleX(static_cast<Size>(width));
  if (height > 0) object.scaleY(static_cast<Size>(height));
  if (depth > 0) object.scaleZ(static_cast<Size>(depth));
}

void ResizeBlock(clsblock& block, int32_t width, int32_t height, int32_t depth) {
  switch (block.changeactioncode()) {
    case clsblock::WinLevel:
    case clsblock::JumpPad:
    case clsblock::TurboPad:
      return dialogs::ShowMessage(kNotResizableText);
    default:
      break;
  }
  Resize<float>(block, width, height, depth);
  block.SelectBlock();
}

template <typename Object>
void Paint(Object& object, const std::string& name, std::initializer_list<const char*> faces) {
  for (const char* face : faces) object.Texture(name, face, Document.TextureDir);
}

void PaintBlock(clsblock& block, const std::string& name) {
  switch (block.changeactioncode()) {
    case clsblock::Normal:
      return Paint(block, name, {"A", "B", "C", "D"});
    case clsblock::TurboPad:
      return Paint(block, name, {"A", "B", "C"});
    default:
      return dialogs::ShowMessage(kSpecialBlockText);
  }
}

void PaintRamp(clsRamp& ramp, const std::string& name) {
  Paint(ramp, name, {"A", "B"});
  ramp.UpdateChanges();
}

void ResizeRamp(clsRamp& ramp, int32_t width, int32_t height, int32_t depth) {
  Resize<int16_t>(ramp, width, height, depth);
  ramp.UpdateChanges();
}

void MoveRamp(clsRamp& ramp, int32_t dx, int32_t dy, int32_t dz) {
  MoveWhole(ramp, dx, dy, dz);
  ramp.UpdateChanges();
}

}  // namespace

void MoveSelection(int32_t dx, int32_t dy, int32_t dz) {
  if (!Document.ObjectSelected) return;
  switch (Document.SelectedType) {
    case TypeBlock:
      MoveBlock(Selected(Document.Blocks), dx, dy, dz);
      break;
    case TypeRamp:
      MoveRamp(Selected(Document.Ramps), dx, dy, dz);
      break;
    case TypePlatform:
      MovePlatform(Selected(Document.Platforms), dx, dy, dz);
      break;
    case TypeStar:
      MoveWhole(Selected(Document.Stars), dx, dy, dz);
      break;
    default:
      break;
  }
  ShowProperties();
}

void ResizeSelection(int32_t width, int32_t height, int32_t depth) {
  if (Document.ObjectSelected) {
    switch (Document.SelectedType) {
      case TypeBlock:
        ResizeBlock(Selected(Document.Blocks), width, height, depth);
        break;
      case TypeRamp:
        ResizeRamp(Selected(Document.Ramps), width, height, depth);
        break;
      case TypePlatform:
        if (PlatformsMayChange()) Resize<float>(Selected(Document.Platforms), width, height, depth);
        break;
      default:
        break;
    }
  }
  ShowProperties();
}

void RetextureSelection(const std::string& name) {
  if (!Document.ObjectSelected) return;
  switch (Document.SelectedType) {
    case TypeBlock:
      PaintBlock(Selected(Document.Blocks), name);
      break;
    case TypeRamp:
      PaintRamp(Selected(Document.Ramps), name);
      break;
    case TypePlatform:
      Paint(Selected(Document.Platforms), name, {"A", "B", "C", "D"});
      break;
    default:
      break;
  }
  DeselectCurrent();
}

void ResetPlatforms() {
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.ResetToOrigin();
  }
}

bool RoomForOneMore(int32_t count) {
  if (count < kGreatestIndex) return true;
  dialogs::ShowMessage(kTrackFullText);
  return false;
}

}  // namespace selection
