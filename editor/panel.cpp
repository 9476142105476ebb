#include "editor/panel.h"

#include "editor/main_controls.h"
#include "editor/selection_state.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"

namespace panel {
namespace {

void ResizeBy(SizeAxis axis) {
  MainControls& c = Controls();
  switch (axis) {
    case SizeAxis::Height:
      return selection::ResizeSelection(0, c.UpDown1.Value(), 0);
    case SizeAxis::Width:
      return selection::ResizeSelection(c.UpDown2.Value(), 0, 0);
    case SizeAxis::Depth:
      return selection::ResizeSelection(0, 0, c.UpDown3.Value());
  }
}

UpDown& UpDownOf(SizeAxis axis) {
  MainControls& c = Controls();
  return axis == SizeAxis::Height ? c.UpDown1 : axis == SizeAxis::Width ? c.UpDown2 : c.UpDown3;
}

/// Gives both arrows the click; what a held arrow repeats is one step.
template <typename Click>
void Connect(UpDown& upDown, Click click) {
  const auto held = [click, &upDown](int direction) {
    history::steps.Continue(reinterpret_cast<history::Gesture>(&upDown));
    click(direction);
  };
  upDown.onUpClick = [held] { held(1); };
  upDown.onDownClick = [held] { held(-1); };
  upDown.onRelease = [] { history::steps.EndGesture(); };
}

void ConnectSize(SizeAxis axis, TextBox& box) {
  UpDown& upDown = UpDownOf(axis);
  Connect(upDown, [axis, &box, &upDown](int) {
    if (Document.ObjectSelected) {
      ResizeBy(axis);  // shows the size that the piece has then
    } else {
      box.Text(std::to_string(upDown.Value()));
    }
  });
}

void ConnectPosition(UpDown& upDown, int32_t dx, int32_t dy, int32_t dz) {
  Connect(upDown, [=](int by) { selection::MoveSelection(by * dx, by * dy, by * dz); });
}

/// Speed or distance of a platform. A refused click leaves the number as it was.
template <typename Get, typename Set>
void ConnectMotion(const char* name, UpDown& upDown, TextBox& box, Get get, Set set) {
  Connect(upDown, [&upDown, &box, name, get, set](int) {
    const clsMovingPlatform* platform = selection::AtIndex<clsMovingPlatform>();
    if (platform == nullptr) return;
    if (!Document.PlatformsPaused) {
      upDown.Value(get(*platform));
      dialogs::ShowMessage(selection::kPauseFirstText);
      return;
    }
    selection::ChangeAtIndex<clsMovingPlatform>(
        name, [&](clsMovingPlatform& p) { set(p, ToByte(upDown.Value())); });
    box.Text(std::to_string(upDown.Value()));
  });
}

void cmbo_Direction_Click() {
  const int index = Controls().cmbo_Direction.ListIndex();
  if (index < 0) return;
  selection::ChangeAtIndex<clsMovingPlatform>("Direction", [index](clsMovingPlatform& platform) {
    platform.Mdir(static_cast<uint8_t>(index + clsMovingPlatform::Left));
  });
}

void Check_Loop_Click() {
  CheckBox& box = Controls().Check_Loop;
  selection::ChangeAtIndex<clsMovingPlatform>("Loop", [&box](clsMovingPlatform& platform) {
    if (Document.PlatformsPaused) {
      platform.MloopBack(box.Checked());
    } else {
      box.Checked(platform.MloopBack());
    }
  });
}

void cmd_ramp_Click() {
  selection::ChangeAtIndex<clsRamp>("Rotate", [](clsRamp& ramp) {
    ramp.rotate();
    // The rotated wedge comes without the mark.
    if (Document.ObjectSelected) selection::Mark(ramp);
  });
  Controls().frmMain.SetFocus();
}

void Pause(bool paused) {
  MainControls& c = Controls();
  Document.PlatformsPaused = paused;
  c.cmd_pause.Caption(paused ? kUnPauseCaption : kPauseCaption);
  selection::ResetPlatforms();
  if (paused) {
    // What swings here after the pause swings alike in play.
    for (auto& platform : Live(Document.Platforms, Document.PlatformCount)) platform.RestartLeg();
  }
  c.frmMain.SetFocus();
}

constexpr int16_t kTopFace = 0, kSideFaces = 1;

/// Special blocks keep their stretch; ramps and stars have none.
void Stretch(clsblock& block, int16_t side, int16_t value) {
  if (block.changeactioncode() == clsblock::Normal) block.AlignTexureCoords(side, value);
}
void Stretch(clsMovingPlatform& platform, int16_t side, int16_t value) {
  platform.AlignTexureCoords(side, value);
}
void Stretch(clsRamp&, int16_t, int16_t) {}
void Stretch(clsStar&, int16_t, int16_t) {}

void StretchClick(const DropDown& list, int16_t side) {
  if (list.ListIndex() < 0) return;
  selection::ChangeSelected(
      "Stretch", [&](auto& piece) { Stretch(piece, side, ToInteger(list.ListIndex())); });
}

void File1_DblClick() {
  if (Document.ObjectSelected && Document.EditorMode == EditMode) {
    selection::RetextureSelection(Controls().File1.FileName());
  }
}

}  // namespace

void ConnectEvents() {
  MainControls& c = Controls();
  ConnectSize(SizeAxis::Height, c.txt_height);
  ConnectSize(SizeAxis::Width, c.txt_width);
  ConnectSize(SizeAxis::Depth, c.txt_depth);
  ConnectPosition(c.UpDownX, 1, 0, 0);
  ConnectPosition(c.UpDownY, 0, 1, 0);
  ConnectPosition(c.UpDownZ, 0, 0, 1);
  using P = clsMovingPlatform;
  ConnectMotion(
      "Speed", c.UpDown_speed, c.txt_speed, [](const P& p) { return p.Mspeed(); },
      [](P& p, uint8_t value) { p.Mspeed(value); });
  ConnectMotion(
      "Distance", c.UpDown_distance, c.txt_distance, [](const P& p) { return p.Mdist(); },
      [](P& p, uint8_t value) { p.Mdist(value); });
  c.cmbo_Direction.onClick = cmbo_Direction_Click;
  c.Check_Loop.onClick = Check_Loop_Click;
  c.cmd_pause.onClick = cmd_pause_Click;
  c.cmd_ramp.onClick = cmd_ramp_Click;
  c.Combo1.onClick = [&c] { StretchClick(c.Combo1, kTopFace); };
  c.Combo2.onClick = [&c] { StretchClick(c.Combo2, kSideFaces); };
  c.File1.onDoubleClick = File1_DblClick;
}

void cmd_pause_Click() { Pause(Controls().cmd_pause.Caption() == kPauseCaption); }

void PausePlatforms() {
  if (!Document.PlatformsPaused) Pause(true);
}

void StepSize(SizeAxis axis, int step) {
  UpDown& upDown = UpDownOf(axis);
  const int value = upDown.Value() + step;
  if (value < upDown.Minimum() || value > upDown.Maximum()) return;
  upDown.Value(value);
  ResizeBy(axis);
}

}  // namespace panel
