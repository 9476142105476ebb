#include "editor/main_controls.h"

#include "platform/dialogs.h"

namespace {

MainControls* running = nullptr;

constexpr int kUpDownWidth = 17;
constexpr int kTextHeight = 19;
constexpr int kLabelHeight = 17;
constexpr int kDropDownHeight = 21;

struct LabelRow {
  Label MainControls::*control;
  const char* name;
  const char* caption;
  Place place;
  bool bold;
};

/// A number's text box and, right of it, its up-down.
struct NumberRow {
  TextBox MainControls::*box;
  const char* boxName;
  UpDown MainControls::*upDown;
  const char* upDownName;
  const char* accessibleName;
  int left, top, width, upDownLeft;
  int initial, minimum, maximum;
};

using M = MainControls;

const LabelRow kLabels[] = {
    {&M::Label3, "Label3", "Object Properties", {8, 8, 129, 17}, true},
    {&M::Label1, "Label1", "Height", {8, 32, 40, kLabelHeight}, false},
    {&M::Label2, "Label2", "Width", {8, 56, 40, kLabelHeight}, false},
    {&M::Label14, "Label14", "Depth", {8, 80, 40, kLabelHeight}, false},
    {&M::Label7, "Label7", "X", {144, 16, 16, kLabelHeight}, false},
    {&M::Label8, "Label8", "Y", {144, 40, 16, kLabelHeight}, false},
    {&M::Label9, "Label9", "Z", {144, 64, 16, kLabelHeight}, false},
    {&M::Label13, "Label13", "Texture Stretcher Top Face", {232, 16, 145, 16}, false},
    {&M::Label15, "Label15", "Texture Stretcher Side Face", {232, 56, 145, 16}, false},
    {&M::Label5, "Label5", "Moving Platform Properties", {384, 8, 113, 33}, true},
    {&M::Label10, "Label10", "Speed", {504, 32, 48, kLabelHeight}, false},
    {&M::Label12, "Label12", "Direction", {504, 56, 48, kLabelHeight}, false},
    {&M::Label11, "Label11", "Distance", {504, 80, 48, kLabelHeight}, false},
    {&M::Label6, "Label6", "Ramp Properties", {640, 16, 129, 25}, true},
};

const NumberRow kNumbers[] = {
    {&M::txt_height, "txt_height", &M::UpDown1, "UpDown1", "Height", 48, 32, 49, 96, 1, 1, 40},
    {&M::txt_width, "txt_width", &M::UpDown2, "UpDown2", "Width", 48, 56, 49, 96, 1, 1, 40},
    {&M::txt_depth, "txt_depth", &M::UpDown3, "UpDown3", "Depth", 48, 80, 49, 96, 1, 1, 400},
    {&M::txt_X, "txt_X", &M::UpDownX, "UpDownX", "X", 160, 16, 40, 200, 0, -50, 50},
    {&M::txt_Y, "txt_Y", &M::UpDownY, "UpDownY", "Y", 160, 40, 40, 200, 0, 0, 50},
    {&M::txt_Z, "txt_Z", &M::UpDownZ, "UpDownZ", "Z", 160, 64, 40, 200, 0, 0, 2500},
    {&M::txt_speed, "txt_speed", &M::UpDown_speed, "UpDown_speed", "Speed", 552, 32, 57, 608, 5, 0,
     20},
    {&M::txt_distance, "txt_distance", &M::UpDown_distance, "UpDown_distance", "Distance", 552, 80,
     57, 608, 5, 0, 10},
};

void Add(MainControls& controls, Control& control, const char* name, const Place& place,
         Control* parent) {
  control.name = name;
  control.place = place;
  control.parent = parent;
  controls.frmMain.controls.push_back(&control);
}

}  // namespace

MainControls& Controls() { return *running; }

MainControls::~MainControls() {
  if (running == this) running = nullptr;
}

MainControls::MainControls() {
  running = this;
  frmMain.name = "frmMain";
  frmMain.Caption(dialogs::kApplicationTitle);
  frmMain.clientWidth = 800;
  frmMain.clientHeight = 574;
  BuildMenus();
  BuildLayout();
  BuildPanelTexts();
  BuildPanelInputs();
}

void MainControls::BuildLayout() {
  Add(*this, viewport, "viewport", {0, 0, 601, 457}, nullptr);
  viewport.accessibleName = "Track";
  Add(*this, VScroll1, "VScroll1", {600, 0, 17, 457}, nullptr);
  VScroll1.accessibleName = "Camera position";
  VScroll1.Range(0, 1000);
  VScroll1.smallStep = 1;
  VScroll1.largeStep = 20;
  Add(*this, Label4, "Label4", {624, 0, 169, 25}, nullptr);
  Label4.Caption("Texture Painter");
  Label4.bold = true;
  Add(*this, File1, "File1", {624, 24, 169, 435}, nullptr);
  File1.accessibleName = "Texture Painter";
  File1.pattern = "*.bmp";
  Add(*this, Frame1, "Frame1", {8, 464, 785, 105}, nullptr);
}

void MainControls::BuildPanelTexts() {
  for (const LabelRow& row : kLabels) {
    Label& label = this->*row.control;
    Add(*this, label, row.name, row.place, &Frame1);
    label.Caption(row.caption);
    label.bold = row.bold;
  }
  for (const NumberRow& row : kNumbers) {
    TextBox& box = this->*row.box;
    Add(*this, box, row.boxName, {row.left, row.top, row.width, kTextHeight}, &Frame1);
    box.accessibleName = row.accessibleName;
    box.Text(std::to_string(row.initial));
    UpDown& upDown = this->*row.upDown;
    Add(*this, upDown, row.upDownName, {row.upDownLeft, row.top, kUpDownWidth, kTextHeight},
        &Frame1);
    upDown.accessibleName = std::string("Change ") + row.accessibleName;
    upDown.Range(row.minimum, row.maximum);
    upDown.Value(row.initial);
  }
}

void MainControls::BuildPanelInputs() {
  const std::vector<std::string> stretches = {"Match Size", "1x", "2x", "3x", "4x", "5x"};
  Add(*this, Combo1, "Combo1", {232, 32, 145, kDropDownHeight}, &Frame1);
  Combo1.accessibleName = "Texture Stretcher Top Face";
  Combo1.items = stretches;
  Add(*this, Combo2, "Combo2", {232, 72, 145, kDropDownHeight}, &Frame1);
  Combo2.accessibleName = "Texture Stretcher Side Face";
  Combo2.items = stretches;
  Add(*this, cmd_pause, "cmd_pause", {384, 48, 113, 25}, &Frame1);
  cmd_pause.Caption(kPauseCaption);
  Add(*this, Check_Loop, "Check_Loop", {384, 80, 105, 17}, &Frame1);
  Check_Loop.Caption("Continous Loop");
  Add(*this, cmbo_Direction, "cmbo_Direction", {552, 56, 73, kDropDownHeight}, &Frame1);
  cmbo_Direction.accessibleName = "Direction";
  cmbo_Direction.items = {"Left", "Right"};
  Add(*this, cmd_ramp, "cmd_ramp", {640, 40, 129, 25}, &Frame1);
  cmd_ramp.Caption("Rotate Ramp");
}

std::array<MenuItem*, 6> MainControls::BackgroundItems() {
  return {&mnu_background1, &mnu_background2, &mnu_background3,
          &mnu_background4, &mnu_background5, &mnu_background6};
}
