#include <map>
#include <utility>

#include "editor/frmMain.h"
#include "editor/hand/drag.h"
#include "editor/history/history.h"
#include "editor/panel.h"
#include "editor/selection.h"
#include "level/globals.h"

namespace {

using Command = void (*)(frmMain&);

/// Virtual-key codes.
enum Key : int16_t {
  kEnter = 13,
  kEscape = 27,
  kSpace = 32,
  kLeft = 37,
  kUp = 38,
  kRight = 39,
  kDown = 40,
  kDelete = 46,
  kKeypad0 = 96,
  kKeypadDivide = 111,
  kF5 = 116,
  kF11 = 122,
  kF12 = 123,
  kComma = 188,
  kPeriod = 190
};

constexpr int kNoModifier = 0;
constexpr int kCtrl = 2;

/// Selects the entry `step` further in the texture list, round its ends.
void StepTexture(frmMain& form, int step) {
  FileList& list = form.controls.File1;
  const int count = static_cast<int>(list.Entries().size());
  if (count > 0) list.ListIndex((list.ListIndex() + step + count) % count);
}

template <MenuItem MainControls::*item>
void Choose(frmMain& form) {
  const auto& handler = (form.controls.*item).onClick;
  if (handler) handler();
}

template <int dx, int dy, int dz>
void Move(frmMain&) {
  selection::MoveSelection(dx, dy, dz);
}

template <panel::SizeAxis axis, int step>
void Size(frmMain&) {
  panel::StepSize(axis, step);
}

void DeleteAndShow(frmMain&) {
  if (!Document.ObjectSelected) return;
  selection::DeleteSelection();
  selection::ShowProperties();
}

using M = MainControls;
using panel::SizeAxis;

/// Ctrl and a letter. Cut and paste do not refresh the panel here.
const std::map<int16_t, Command> kCtrlCommands = {
    {'F', Choose<&M::mnu_fallingBlock>},
    {'K', Choose<&M::mnu_instantkill>},
    {'I', Choose<&M::mnu_ice>},
    {'W', Choose<&M::mnu_Endlevel>},
    {'J', Choose<&M::mnu_BouncePad>},
    {'T', Choose<&M::mnu_turbo>},
    {'B', Choose<&M::mnu_building>},
    {'M', Choose<&M::mnu_MovingPlatform>},
    {'R', Choose<&M::mnu_Ramp>},
    {'C', [](frmMain&) { selection::CopySelection(false); }},
    {'X', [](frmMain&) { selection::CopySelection(true); }},
    {'V', [](frmMain&) { selection::PasteClipboard(); }},
};

const std::map<int16_t, Command> kPlainCommands = {
    {kDelete, DeleteAndShow},
    {kSpace, Choose<&M::mnu_block>},
    {kRight, Move<1, 0, 0>},
    {kLeft, Move<-1, 0, 0>},
    {kUp, Move<0, 0, 1>},
    {kDown, Move<0, 0, -1>},
    {'A', Move<0, 1, 0>},
    {'Z', Move<0, -1, 0>},
    {kF11, Choose<&M::mnu_normal>},
    {kF12, Choose<&M::mnu_low>},
    {kKeypad0 + 7, Size<SizeAxis::Height, 1>},
    {kKeypad0 + 9, Size<SizeAxis::Height, 1>},
    {kKeypad0 + 1, Size<SizeAxis::Height, -1>},
    {kKeypad0 + 3, Size<SizeAxis::Height, -1>},
    {kKeypad0 + 6, Size<SizeAxis::Width, 1>},
    {kKeypad0 + 4, Size<SizeAxis::Width, -1>},
    {kKeypad0 + 8, Size<SizeAxis::Depth, 1>},
    {kKeypad0 + 2, Size<SizeAxis::Depth, -1>},
    {kPeriod, [](frmMain& form) { StepTexture(form, 1); }},
    {kComma, [](frmMain& form) { StepTexture(form, -1); }},
    {kEnter, [](frmMain& form) { selection::RetextureSelection(form.controls.File1.FileName()); }},
};

/// What this key repeats while it is held.
history::Gesture GestureOf(int16_t key) { return history::Gesture{1} + static_cast<uint16_t>(key); }

void Run(const std::map<int16_t, Command>& commands, int16_t key, frmMain& form) {
  const auto found = commands.find(key);
  if (found == commands.end()) return;
  history::steps.Continue(GestureOf(key));
  found->second(form);
}

}  // namespace

void frmMain::Form_KeyDown(int16_t& KeyCode, int Shift) {
  const int16_t key = KeyCode;
  // No control of the window acts on the key as well, whatever the command does.
  KeyCode = kKeypadDivide;
  // A held key must not pile up blocks on one spot.
  const bool heldSpace = key == kSpace && std::exchange(SpaceHeld_, true);
  if (Document.EditorMode != EditMode || heldSpace) return;
  if (key == kEscape && drag::Cancel()) return;
  if (Shift == kCtrl) {
    if (std::exchange(KeyReleased_, false)) Run(kCtrlCommands, key, *this);
  } else if (Shift == kNoModifier && key == kF5) {
    if (std::exchange(KeyReleased_, false)) Choose<&M::mnu_Star>(*this);
  } else if (Shift == kNoModifier) {
    Run(kPlainCommands, key, *this);
  }
}

void frmMain::Form_KeyUp(int16_t KeyCode) {
  KeyReleased_ = true;
  if (KeyCode == kSpace || KeyCode == 0) SpaceHeld_ = false;
  if (KeyCode == 0) {
    history::steps.EndGesture();
  } else {
    history::steps.EndGesture(GestureOf(KeyCode));
  }
}
