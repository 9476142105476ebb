#include "editor/picking.h"

#include <cmath>

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
    UseTexture("a.bmp");
  }
  /// A block whose front face is at depth z, around the ray through the centre.
  clsblock& AddBlock(float z, uint8_t code = 0) {
    ++Document.BlockCount;
    clsblock& block = Document.Blocks.emplace_back();
    block.create(-1, -1, z, 2, 2, 2);
    block.changeactioncode(code);
    for (const char* face : {"A", "B", "C", "D"})
      block.Texture("_default.bmp", face, Document.TextureDir);
    return block;
  }
  void Click(int button = 1, int shift = 0, float x = 300, float y = 228) {
    c.viewport.UserPresses(button, shift, x, y);
  }
  void LookAt(const Vector3& point, const Vector3& normal) {
    const Vector3 eye{point.x + 8 * normal.x, point.y + 8 * normal.y, point.z + 8 * normal.z};
    const Vector3 up = std::abs(normal.y) > 0.9F ? Vector3{0, 0, 1} : Vector3{0, 1, 0};
    DirectX::D3DDevice->SetTransform(Transform::View, d3dx::LookAtLH(eye, point, up));
  }
  void Clear() {
    Document.BlockCount = Document.PlatformCount = Document.RampCount = -1;
    Document.Blocks.clear();
    Document.Platforms.clear();
    Document.Ramps.clear();
    Document.ObjectSelected = false;
  }
  static clsMovingPlatform& AddNewPlatform() {
    Document.PlatformCount = 0;
    clsMovingPlatform& platform = Document.Platforms.emplace_back();
    platform.create(0, 0, 0);
    return platform;
  }
  static clsRamp& AddRamp(int rotation) {
    Document.RampCount = 0;
    clsRamp& ramp = Document.Ramps.emplace_back();
    ramp.create(0, 0, 0);
    for (int i = 0; i < rotation; ++i) ramp.rotate();
    return ramp;
  }
  /// Resizes, then moves: only sizes make new planes.
  template <typename Object>
  static Object& Made(Object& object, const Vector3& at, const Vector3& size) {
    object.scaleX(static_cast<decltype(object.scaleX())>(size.x));
    object.scaleY(static_cast<decltype(object.scaleY())>(size.y));
    object.scaleZ(static_cast<decltype(object.scaleZ())>(size.z));
    object.Xpos(static_cast<decltype(object.Xpos())>(at.x));
    object.Ypos(static_cast<decltype(object.Ypos())>(at.y));
    object.Zpos(static_cast<decltype(object.Zpos())>(at.z));
    return object;
  }
  struct Face {
    int plane;
    Vector3 middle, normal;
  };
  /// Faces 1 to 5 of the piece at its present place.
  template <typename Object>
  static std::vector<Face> Faces(const Object& object) {
    std::vector<Face> faces;
    for (int16_t number = 1; number <= 5; ++number) {
      const auto c = object.GetFaceCorners(number);
      if (c == decltype(c){}) continue;
      const CollisionPlane plane = object.DrawnPlanes()[static_cast<size_t>(number - 1)];
      Vector3 middle;
      for (size_t k = 0; k < 3; ++k) {
        middle = {middle.x + c[k].x / 3, middle.y + c[k].y / 3, middle.z + c[k].z / 3};
      }
      faces.push_back({number, middle, {plane.a, plane.b, plane.c}});
    }
    return faces;
  }
  template <typename Visit>
  static void VisitOnlyPiece(Visit visit) {
    if (Document.BlockCount >= 0) return visit(Document.Blocks[0]);
    if (Document.PlatformCount >= 0) return visit(Document.Platforms[0]);
    visit(Document.Ramps[0]);
  }
  void PaintAll(const std::string& name) {
    UseTexture("a.bmp");
    VisitOnlyPiece([&](auto& piece) {
      for (const char* face : {"A", "B", "C", "D"}) piece.Texture(name, face, Document.TextureDir);
    });
  }
  /// Letters of the faces that show the chosen texture.
  std::string PaintedFaces() {
    std::string letters;
    VisitOnlyPiece([&](auto& piece) {
      if (piece.GetTextureA() == c.File1.FileName()) letters += "A";
      if (piece.GetTextureB() == c.File1.FileName()) letters += "B";
      if constexpr (std::is_base_of_v<BoxObject, std::decay_t<decltype(piece)>>) {
        if (piece.GetTextureC() == c.File1.FileName()) letters += "C";
        if (piece.GetTextureD() == c.File1.FileName()) letters += "D";
      }
    });
    return letters;
  }
  void UseTexture(const std::string& name) {
    const auto& entries = c.File1.Entries();
    c.File1.ListIndex(static_cast<int>(std::ranges::find(entries, name) - entries.begin()));
  }
};

TEST_F(PickingTest, NearestFaceWins) {
  AddBlock(30);
  AddBlock(10);
  Click();
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_EQ(Document.SelectedIndex, 1);
  EXPECT_EQ(Document.SelectedPlane, 4);
  EXPECT_EQ(Document.Blocks[1].GeometryVertices()[0].colour, 0x888888U);
  Click(1, 0, 0, 0);
  EXPECT_FALSE(Document.ObjectSelected);
  EXPECT_EQ(Document.Blocks[1].GeometryVertices()[0].colour, 0x9A9A9AU);
  EXPECT_EQ(Document.SelectedPlane, 4) << "kept until the next pick";
  EXPECT_FALSE(c.Combo1.Enabled());
}

TEST_F(PickingTest, DistancesAreComparedInWholeUnits) {
  // Distances count from one unit in front of the eye: 4.2 and 4.4, then 5.6 and 5.8.
  AddBlock(5.4F);
  AddBlock(5.2F);
  Click();
  EXPECT_EQ(Document.SelectedIndex, 0) << "4.2 is not less than 4";
  Clear();
  AddBlock(6.6F);
  AddBlock(6.8F);
  Click();
  EXPECT_EQ(Document.SelectedIndex, 1) << "5.8 is less than 6";
}

TEST_F(PickingTest, NothingBeyondAHundredUnits) {
  AddBlock(102);
  Click();
  EXPECT_FALSE(Document.ObjectSelected);
}

TEST_F(PickingTest, EveryFaceIsPickedWhereItIsDrawnAndPainted) {
  struct Piece {
    int32_t type;
    int rotation;
  };
  const Vector3 at{-7, 20, 30};
  for (const Vector3& size : {Vector3{3, 3, 3}, Vector3{2, 9, 4}, Vector3{4, 4, 9}}) {
    for (const Piece& piece : {Piece{TypeBlock, 0}, Piece{TypePlatform, 0}, Piece{TypeRamp, 0},
                               Piece{TypeRamp, 1}, Piece{TypeRamp, 2}, Piece{TypeRamp, 3}}) {
      // Moved and resized since it was made; its own planes may lag behind.
      Clear();
      const auto faces = piece.type == TypeBlock      ? Faces(Made(AddBlock(0), at, size))
                         : piece.type == TypePlatform ? Faces(Made(AddNewPlatform(), at, size))
                                                      : Faces(Made(AddRamp(piece.rotation), at, size));
      for (const auto& [plane, middle, normal] : faces) {
        SCOPED_TRACE(testing::Message() << "type " << piece.type << " rotation " << piece.rotation
                                        << " plane " << plane << " height " << size.y);
        PaintAll("_default.bmp");
        LookAt(middle, normal);
        Click(2, 1);
        ASSERT_TRUE(Document.ObjectSelected);
        EXPECT_EQ(Document.SelectedType, piece.type);
        EXPECT_EQ(Document.SelectedPlane, plane);
        EXPECT_EQ(c.cmd_ramp.Enabled(), piece.type == TypeRamp);
        const std::string boxes[] = {"B", "C", "D", "A", ""};
        EXPECT_EQ(PaintedFaces(), piece.type != TypeRamp ? boxes[plane - 1]
                                  : plane == 3           ? "AB"
                                                         : "B");
      }
    }
  }
}

TEST_F(PickingTest, RightClickTellsKindsAndPaintsWholePieces) {
  AddBlock(10, clsblock::JumpPad);
  Click(2);
  EXPECT_EQ(boxes.messages, std::vector<std::string>{"2"});
  Click(2, 1);
  EXPECT_EQ(PaintedFaces(), "") << "special blocks are not painted";
  EXPECT_TRUE(Document.ObjectSelected);
  Clear();
  Made(AddNewPlatform(), {-1, 0, 10}, {2, 2, 2});
  Click(2, 0, 300, 220);
  EXPECT_EQ(PaintedFaces(), "ABCD");
  Clear();
  Made(AddRamp(2), {-1, 0, 10}, {2, 2, 2});
  Click(2, 0, 300, 220);
  EXPECT_EQ(PaintedFaces(), "AB");
  EXPECT_EQ(Document.Ramps[0].GeometryVertices()[0].colour, 0xFFFFFFU) << "the mark goes";
}

TEST_F(PickingTest, OfEqualDistancesTheFirstKindWins) {
  Document.StarCount = 0;
  clsStar& star = Document.Stars.emplace_back();
  star.load(paths::InInstallFolder("\\models\\orb.x"));
  star.Zpos(10);
  const auto picked = [&] {
    Click(1, 0, 300, 220);
    return Document.SelectedType;
  };
  EXPECT_EQ(picked(), TypeStar);
  Made(AddRamp(2), {-1, -1, 10}, {2, 2, 2});
  EXPECT_EQ(picked(), TypeRamp);
  Made(AddNewPlatform(), {-1, -1, 10}, {2, 2, 2});
  EXPECT_EQ(picked(), TypePlatform);
  AddBlock(10);
  EXPECT_EQ(picked(), TypeBlock);
}

TEST_F(PickingTest, FailedPaintingKeepsTheSelection) {
  AddBlock(10);
  std::filesystem::remove(folder / "textures/a.bmp");
  Click(2, 1);
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_EQ(boxes.messages.size(), 1U);
}

}  // namespace
