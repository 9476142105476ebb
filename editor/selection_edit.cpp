#include "editor/main_controls.h"
#include "editor/selection_state.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"

namespace selection {
namespace {

bool Inside(const UpDown& range, double value) {
  return value >= range.Minimum() && value <= range.Maximum();
}

void Move(clsblock& block, int32_t dx, int32_t dy, int32_t dz) {
  const MainControls& c = Controls();
  const double x = double{block.Xpos()} + dx, y = double{block.Ypos()} + dy;
  if (Inside(c.UpDownX, x)) block.Xpos(ToSingle(x));
  if (Inside(c.UpDownY, y)) block.Ypos(ToSingle(y));
  const double z = static_cast<double>(block.Zpos()) + dz;
  if (Inside(c.UpDownZ, z)) block.Zpos(ToLong(z));
}

/// For ramps and stars, whose places are whole numbers without a range.
template <typename Piece>
void MoveWhole(Piece& object, int32_t dx, int32_t dy, int32_t dz) {
  object.Xpos(ToLong(static_cast<double>(object.Xpos()) + dx));
  object.Ypos(ToLong(static_cast<double>(object.Ypos()) + dy));
  object.Zpos(ToLong(static_cast<double>(object.Zpos()) + dz));
}

/// False, after a message, while platforms run.
bool PlatformsMayChange() {
  if (!Document.PlatformsPaused) dialogs::ShowMessage(kPauseFirstText);
  return Document.PlatformsPaused;
}

void Move(clsMovingPlatform& platform, int32_t dx, int32_t dy, int32_t dz) {
  if (!PlatformsMayChange()) return;
  platform.Xpos(ToSingle(double{platform.Xpos()} + dx));
  platform.Ypos(ToSingle(double{platform.Ypos()} + dy));
  platform.Zpos(ToSingle(double{platform.Zpos()} + dz));
}

template <typename Size, typename Piece>
void SetSizes(Piece& object, int32_t width, int32_t height, int32_t depth) {
  if (width > 0) object.scaleX(static_cast<Size>(width));
  if (height > 0) object.scaleY(static_cast<Size>(height));
  if (depth > 0) object.scaleZ(static_cast<Size>(depth));
}

void Resize(clsblock& block, int32_t width, int32_t height, int32_t depth) {
  switch (block.changeactioncode()) {
    case clsblock::WinLevel:
    case clsblock::JumpPad:
    case clsblock::TurboPad:
      return dialogs::ShowMessage(kNotResizableText);
    default:
      break;
  }
  SetSizes<float>(block, width, height, depth);
  block.SelectBlock();
}

template <typename Piece>
void PaintFaces(Piece& piece, const std::string& name, std::initializer_list<const char*> faces) {
  for (const char* face : faces) piece.Texture(name, face, Document.TextureDir);
}

void Paint(clsblock& block, const std::string& name) {
  switch (block.changeactioncode()) {
    case clsblock::Normal:
      return PaintFaces(block, name, {"A", "B", "C", "D"});
    case clsblock::TurboPad:
      return PaintFaces(block, name, {"A", "B", "C"});
    default:
      return dialogs::ShowMessage(kSpecialBlockText);
  }
}

void Paint(clsRamp& ramp, const std::string& name) {
  PaintFaces(ramp, name, {"A", "B"});
  ramp.UpdateChanges();
}

void Paint(clsMovingPlatform& platform, const std::string& name) {
  PaintFaces(platform, name, {"A", "B", "C", "D"});
}

void Paint(clsStar&, const std::string&) {}

void Resize(clsRamp& ramp, int32_t width, int32_t height, int32_t depth) {
  SetSizes<int16_t>(ramp, width, height, depth);
  ramp.UpdateChanges();
}

void Resize(clsMovingPlatform& platform, int32_t width, int32_t height, int32_t depth) {
  if (PlatformsMayChange()) SetSizes<float>(platform, width, height, depth);
}

void Resize(clsStar&, int32_t, int32_t, int32_t) {}

void Move(clsRamp& ramp, int32_t dx, int32_t dy, int32_t dz) {
  MoveWhole(ramp, dx, dy, dz);
  ramp.UpdateChanges();
}

void Move(clsStar& star, int32_t dx, int32_t dy, int32_t dz) { MoveWhole(star, dx, dy, dz); }

}  // namespace

void MoveSelection(int32_t dx, int32_t dy, int32_t dz) {
  if (!Document.ObjectSelected) return;
  ChangeSelected("Move", [=](auto& piece) { Move(piece, dx, dy, dz); });
  ShowProperties();
}

void ResizeSelection(int32_t width, int32_t height, int32_t depth) {
  ChangeSelected("Resize", [=](auto& piece) { Resize(piece, width, height, depth); });
  ShowProperties();
}

void RetextureSelection(const std::string& name) {
  ChangeSelected("Paint", [&name](auto& piece) { Paint(piece, name); });
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
