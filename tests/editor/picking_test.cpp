#include "editor/picking.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "editor/pick_ray.h"
#include "level/maths.h"
#include "tests/editor/editor_fixture.h"

namespace {

/// Looks straight ahead along z from the origin, so that the centre of the viewport meets what
/// stands at (0, 0, z).
class PickingTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    DirectX::D3DDevice->SetTransform(Transform::View, d3dx::Identity());
    Clear();
    const auto& entries = c.File1.Entries();
    c.File1.ListIndex(static_cast<int>(std::ranges::find(entries, "a.bmp") - entries.begin()));
  }
  static void Clear() {
    VisitKinds([](auto kind) {
      kind.All().clear();
      kind.Count() = -1;
    });
    Document.ObjectSelected = false;
  }
  /// A block whose front face is at depth z, around the ray through the centre.
  clsblock& AddBlock(float z, uint8_t code = 0) {
    ++Document.BlockCount;
    clsblock& block = Document.Blocks.emplace_back();
    block.create(-1, -1, z, 2, 2, 2);
    block.changeactioncode(code);
    return block;
  }
  /// A piece that was resized, turned and moved since it was made; its own planes may lag behind.
  void Insert(MenuItem& item, const std::array<int, 3>& by, const std::array<int, 3>& size,
              int turns = 0) {
    item.UserClicks();
    selection::ResizeSelection(size[0], size[1], size[2]);
    for (int turn = 0; turn < turns; ++turn) c.cmd_ramp.UserClicks();
    selection::MoveSelection(by[0], by[1], by[2]);
  }
  void Click(int button = 1, int shift = 0, float x = 300, float y = 228) {
    c.viewport.UserPresses(button, shift, x, y);
  }
  /// Letters of the selected piece's faces that show the chosen texture.
  std::string PaintedFaces() {
    std::string looks = SelectedLooks(), letters;
    std::ranges::replace(looks, '/', ' ');
    std::istringstream words(looks);
    char letter = 'A';
    for (std::string word; words >> word; letter += word.ends_with(".bmp")) {
      if (word == c.File1.FileName()) letters += letter;
    }
    return letters;
  }
  /// Looks at each face of a piece in turn; `painted` has the faces that Shift and the right button
  /// paint, by number.
  void ExpectEveryFacePicked(MenuItem& item, const std::array<int, 3>& size,
                             const std::array<std::string, 5>& painted, int turns = 0) {
    Clear();
    Insert(item, {-7, 20, 30}, size, turns);
    const int32_t type = Document.SelectedType;
    const auto pickAll = [&](const auto& piece) {
      for (int16_t plane = 1; plane <= 5; ++plane) {
        const auto corners = piece.GetFaceCorners(plane);
        if (corners == std::decay_t<decltype(corners)>{}) continue;  // a wedge lacks one
        LookAt(corners, piece.DrawnPlanes()[static_cast<size_t>(plane - 1)]);
        selection::RetextureSelection("_default.bmp");
        Click(2, 1);
        EXPECT_EQ(
            Words(Document.ObjectSelected, Document.SelectedType, Document.SelectedPlane,
                  c.cmd_ramp.Enabled(), PaintedFaces()),
            Words(true, type, plane, type == TypeRamp, painted[static_cast<size_t>(plane - 1)]))
            << item.name << " turns " << turns << " height " << size[1];
      }
    };
    VisitSelected(pickAll);
  }
  static void LookAt(const std::array<Vector3, 4>& corners, const CollisionPlane& plane) {
    Vector3 middle;
    for (size_t k = 0; k < 3; ++k) {
      middle = {middle.x + corners[k].x / 3, middle.y + corners[k].y / 3,
                middle.z + corners[k].z / 3};
    }
    const Vector3 eye{middle.x + 8 * plane.a, middle.y + 8 * plane.b, middle.z + 8 * plane.c};
    const Vector3 up = std::abs(plane.b) > 0.9F ? Vector3{0, 0, 1} : Vector3{0, 1, 0};
    DirectX::D3DDevice->SetTransform(Transform::View, d3dx::LookAtLH(eye, middle, up));
  }
};

TEST_F(PickingTest, EveryFaceIsPickedWhereItIsDrawnAndPainted) {
  for (const std::array<int, 3>& size : {std::array{3, 3, 3}, {2, 9, 4}, {4, 4, 9}}) {
    ExpectEveryFacePicked(c.mnu_block, size, {"B", "C", "D", "A", ""});
    ExpectEveryFacePicked(c.mnu_MovingPlatform, size, {"B", "C", "D", "A", ""});
    for (const int turns : {0, 1, 2, 3}) {
      ExpectEveryFacePicked(c.mnu_Ramp, size, {"B", "B", "AB", "B", "B"}, turns);
    }
  }
  ExpectEveryFacePicked(c.mnu_Star, {}, {});
}

/// The box of a piece decides whether its faces are looked at: whatever a ray hits lies in it.
TEST_F(PickingTest, NoHitIsLostToTheTestOfTheBox) {
  std::mt19937 random(5);
  const auto upTo = [&random](int most) {
    return static_cast<int>(random() % static_cast<unsigned>(most + 1));
  };
  int hits = 0, left = 0;
  for (int round = 0; round < 1000; ++round) {
    Clear();
    Insert(c.mnu_block, {upTo(8) - 4, upTo(3), upTo(9)}, {upTo(4), upTo(4), upTo(4)}, 0);
    Insert(c.mnu_Ramp, {upTo(8) - 4, upTo(3), upTo(9)}, {upTo(4), upTo(4), upTo(4)}, upTo(3));
    Insert(c.mnu_MovingPlatform, {upTo(8) - 4, upTo(3), upTo(9)}, {upTo(4), 1, upTo(4)}, 0);
    Insert(c.mnu_Star, {upTo(8) - 4, upTo(3), upTo(9)}, {}, 0);
    const PickRay ray = RayThrough(static_cast<float>(upTo(600)), static_cast<float>(upTo(456)));
    VisitKinds([&](auto kind) {
      const auto& piece = kind.Pieces().back();
      const auto planes = piece.DrawnPlanes();
      bool hit = false;
      for (int16_t plane = 1; plane <= 5; ++plane) {
        const auto q = piece.GetFaceCorners(plane);
        Vector3 at;
        hit = hit || (maths::IntersectRayPlane(planes[static_cast<size_t>(plane - 1)], ray.start,
                                               ray.direction, at) &&
                      maths::PointInQuadEitherWay(q[0], q[1], q[2], q[3], at));
      }
      hits += hit ? 1 : 0;
      left += ray.MayMeet(piece.Drawn()) ? 1 : 0;
      EXPECT_TRUE(!hit || ray.MayMeet(piece.Drawn())) << round << " kind " << kind.type;
    });
  }
  EXPECT_GT(hits, 100);
  EXPECT_LT(left, 3 * hits) << "most of what is not hit is left out";
}

TEST_F(PickingTest, NearestFaceWinsByWholeUnitsInsideTheReach) {
  struct Row {
    float first, second;
    std::string found;  ///< whether, the index, the plane
  };
  // Distances count from one unit in front of the eye: 4.2 is not less than 4, 5.8 is less than 6.
  // The ray ends at 100; what was picked last is kept.
  for (const auto& [first, second, found] : {Row{30, 10, "1 1 4 0 1;"},
                                             {5.4F, 5.2F, "1 0 4 0 0;"},
                                             {6.6F, 6.8F, "1 1 4 0 1;"},
                                             {200, 99.9F, "1 1 4 0 1;"},
                                             {100.1F, 100.1F, "0 1 4 "}}) {
    Clear();
    AddBlock(first);
    AddBlock(second);
    Click();
    EXPECT_EQ(
        Words(Document.ObjectSelected, Document.SelectedIndex, Document.SelectedPlane, Marked()),
        found);
    Click(1, 0, 0, 0);
    EXPECT_FALSE(Document.ObjectSelected || c.Combo1.Enabled());
    EXPECT_EQ(Marked(), "");
  }
}

TEST_F(PickingTest, RightClickTellsKindsAndPaintsWholePieces) {
  AddBlock(10, clsblock::JumpPad);
  Click(2);
  EXPECT_EQ(boxes.messages, Texts{"2"});
  Click(2, 1);
  EXPECT_TRUE(Document.ObjectSelected && PaintedFaces().empty()) << "special blocks";
  Clear();
  Insert(c.mnu_MovingPlatform, {-1, 0, 10}, {2, 2, 2});
  Click(1, 1, 300, 220);
  EXPECT_EQ(PaintedFaces(), "") << "the left button";
  Click(2, 0, 300, 220);
  EXPECT_EQ(PaintedFaces(), "ABCD");
  Clear();
  Insert(c.mnu_Ramp, {-1, -1, 10}, {2, 2, 2}, 2);
  Click(2, 0, 300, 220);
  EXPECT_EQ(PaintedFaces(), "AB");
  EXPECT_EQ(Marked(), "") << "the mark goes";
  Clear();
  AddBlock(10);
  std::filesystem::remove(folder / "textures/a.bmp");
  Click(2, 1);
  EXPECT_TRUE(Document.ObjectSelected) << "though the painting failed";
  EXPECT_EQ(boxes.messages.size(), 2U);
}

}  // namespace
