#include <cmath>

#include "editor/main_controls.h"
#include "editor/selection_state.h"

namespace selection {
namespace {

/// The text box shows the true value, the up-down the nearest one in its range.
void ShowNumber(TextBox& box, UpDown& upDown, double value) {
  upDown.Value(value);
  box.Text(std::to_string(static_cast<int64_t>(std::nearbyint(value))));
}

/// Sizes by the axis that they run along, then the position.
void ShowPlace(double width, double height, double depth, double x, double y, double z) {
  MainControls& c = Controls();
  ShowNumber(c.txt_height, c.UpDown1, height);
  ShowNumber(c.txt_width, c.UpDown2, width);
  ShowNumber(c.txt_depth, c.UpDown3, depth);
  ShowNumber(c.txt_X, c.UpDownX, x);
  ShowNumber(c.txt_Y, c.UpDownY, y);
  ShowNumber(c.txt_Z, c.UpDownZ, z);
}

template <typename T>
void ShowSizesAndPlace(const T& object) {
  ShowPlace(object.scaleX(), object.scaleY(), object.scaleZ(), object.Xpos(), object.Ypos(),
            object.Zpos());
}

void ShowStretch(const BoxObject& box) {
  Controls().Combo1.ListIndex(box.ScaleTextureTop());
  Controls().Combo2.ListIndex(box.ScaleTextureSide());
}

void EnableStretch() {
  Controls().Combo1.Enabled(true);
  Controls().Combo2.Enabled(true);
}

void Show(clsblock& block) {
  ShowSizesAndPlace(block);
  Mark(block);
  if (block.changeactioncode() == clsblock::Normal) EnableStretch();
  ShowStretch(block);
}

void Show(clsRamp& ramp) {
  ShowSizesAndPlace(ramp);
  Mark(ramp);
  Controls().cmd_ramp.Enabled(true);
}

void Show(clsMovingPlatform& platform) {
  MainControls& c = Controls();
  ShowSizesAndPlace(platform);
  Mark(platform);
  c.cmbo_Direction.ListIndex(platform.GetinitalMDir() - clsMovingPlatform::Left);
  ShowNumber(c.txt_distance, c.UpDown_distance, platform.Mdist());
  ShowNumber(c.txt_speed, c.UpDown_speed, platform.Mspeed());
  if (Document.PlatformsPaused) c.cmbo_Direction.Enabled(true);
  c.Check_Loop.Checked(platform.MloopBack());
  EnableStretch();
  ShowStretch(platform);
  c.Check_Loop.Enabled(true);
}

void Show(clsStar& star) {
  ShowPlace(1, 1, 1, star.Xpos(), star.Ypos(), star.Zpos());
  Mark(star);
}

}  // namespace

void DeselectCurrent() {
  VisitSelected([](auto& piece) { Unmark(piece); });
}

void Select(int32_t type, int32_t index) {
  constexpr int32_t kTop = 3;
  DeselectCurrent();
  Document.ObjectSelected = true;
  Document.SelectedType = type;
  Document.SelectedIndex = index;
  Document.SelectedPlane = kTop;
  ShowProperties();
}

void ShowProperties() {
  MainControls& c = Controls();
  for (Control* control : std::initializer_list<Control*>{&c.cmbo_Direction, &c.cmd_ramp, &c.Combo1,
                                                          &c.Combo2, &c.Check_Loop}) {
    control->Enabled(false);
  }
  if (Document.ObjectSelected) {
    VisitSelected([](auto& piece) { Show(piece); });
  } else {
    ShowPlace(1, 1, 1, 0, 0, 0);
  }
}

}  // namespace selection
