// The whole editor on the null backends, started, and words for what it shows.
#pragma once

#include <sstream>
#include <utility>

#include "editor/frmMain.h"
#include "editor/selection.h"
#include "files/FileIO.h"
#include "level/pieces.h"
#include "play/DirectInput.h"
#include "tests/support/null_editor.h"

template <typename... Parts>
std::string Words(const Parts&... parts) {
  std::ostringstream text;
  const char* blank = "";
  ((text << std::exchange(blank, " ") << parts), ...);
  return text.str();
}

using Texts = std::vector<std::string>;

/// What a piece looks like: sizes, kind, textures, motion.
template <typename Piece>
std::string Looks(const Piece& piece) {
  std::string said;
  if constexpr (requires { piece.scaleX(); }) {
    said = Words(piece.scaleX(), piece.scaleY(), piece.scaleZ(), "");
  }
  if constexpr (requires { piece.rotateVal(); }) {
    said += Words("turned", +piece.rotateVal(), piece.GetTextureA() + "/" + piece.GetTextureB());
  }
  if constexpr (requires { piece.GetTextureC(); }) {
    said += Words("stretch", +piece.ScaleTextureTop(), +piece.ScaleTextureSide(), "kind",
                  +piece.changeactioncode(),
                  piece.GetTextureA() + "/" + piece.GetTextureB() + "/" + piece.GetTextureC() +
                      "/" + piece.GetTextureD());
  }
  if constexpr (requires { piece.Mspeed(); }) {
    said += Words(" direction", +piece.GetinitalMDir(), "speed", +piece.Mspeed(), "distance",
                  +piece.Mdist(), "loop", piece.MloopBack());
  }
  return said;
}

/// Of a platform on its way also where it starts.
template <typename Piece>
std::string PlaceOf(const Piece& p) {
  std::string place = Words(p.Xpos(), p.Ypos(), p.Zpos());
  if constexpr (requires { p.GetInitalXpos(); }) {
    const std::string start = Words(p.GetInitalXpos(), p.GetInitalYpos(), p.GetInitalZpos());
    if (start != place) return place + " from " + start;
  }
  return place;
}

class EditorTest : public NullEditorTest {
 protected:
  void SetUp() override { ASSERT_TRUE(form.Start()); }
  ~EditorTest() override {
    DirectInput::KeyboardDevice.reset();
    DirectInput::DI.reset();
  }
  /// Moves the clock and runs the pass that follows.
  void PassAfter(double milliseconds) {
    clock.microseconds += static_cast<int64_t>(milliseconds * 1000);
    form.Pass();  // sees the time
    form.Pass();  // acts on it
  }
  static std::string Bytes() {
    std::string bytes;
    EXPECT_TRUE(FileIO::LevelBytes(bytes).Ok());
    return bytes;
  }
  /// A platform of 2 x 2 at 0, 0, 0 that swings to the right and back.
  void AddRunningPlatform() {
    c.mnu_MovingPlatform.UserClicks();
    c.cmd_pause.UserClicks();
  }
  clsblock& LastBlock() { return Document.Blocks[static_cast<size_t>(Document.BlockCount)]; }
  void Select(int32_t type, int32_t index) {
    selection::DeselectCurrent();
    Document.ObjectSelected = true;
    Document.SelectedType = type;
    Document.SelectedIndex = index;
    selection::ShowProperties();
  }
  static std::string SelectedPlace() {
    std::string said = "nothing";
    VisitSelected([&](const auto& piece) { said = PlaceOf(piece); });
    return said;
  }
  static std::string SelectedLooks() {
    std::string said = "nothing";
    VisitSelected([&](const auto& piece) { said = Looks(piece); });
    return said;
  }
  /// Kinds and indices of the pieces with the selection mark; a star's is not told.
  static std::string Marked() {
    std::string marked;
    VisitKinds([&](auto kind) {
      for (size_t i = 0; i < kind.Pieces().size(); ++i) {
        if constexpr (requires { kind.Pieces()[i].GeometryVertices(); }) {
          if (kind.Pieces()[i].GeometryVertices().back().colour == 0x888888U)
            marked += Words(kind.type, i) + ";";
        }
      }
    });
    return marked;
  }
  static std::string Counts() {
    return Words(Document.BlockCount, Document.PlatformCount, Document.RampCount,
                 Document.StarCount);
  }
  /// The panel's numbers and lists, then the names of what is enabled.
  std::string Panel() {
    std::string said =
        Words(c.txt_height.Text(), c.txt_width.Text(), c.txt_depth.Text(), c.txt_X.Text(),
              c.txt_Y.Text(), c.txt_Z.Text(), c.txt_speed.Text(), c.txt_distance.Text(), "stretch",
              c.Combo1.ListIndex(), c.Combo2.ListIndex(), "direction", c.cmbo_Direction.ListIndex(),
              "loop", c.Check_Loop.Checked());
    for (const Control* control : std::initializer_list<Control*>{
             &c.Combo1, &c.Combo2, &c.cmbo_Direction, &c.Check_Loop, &c.cmd_ramp}) {
      if (control->Enabled()) said += " " + control->name;
    }
    return said;
  }
  /// Captions of the menu items with a check mark.
  std::string Checked() {
    std::string said;
    for (const MenuItem* menu : c.frmMain.menus) {
      for (const MenuItem* item : menu->items) {
        if (item->Checked()) said += item->Caption() + ";";
      }
    }
    return said;
  }

  null_platform::VirtualClock clock;
  null_platform::NullPump pump;
  null_platform::NullShell shell;
  frmMain form{{clock, pump, shell}};
  MainControls& c = form.controls;
};
