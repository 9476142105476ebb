#include "editor/insert.h"

#include "editor/selection_state.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "render/device/DirectX.h"

namespace insert {
namespace {

constexpr int kTargetAhead = 18;
constexpr int kStarAhead = 19;

/// A new block is 1 × 1 × 1; then the values that are not 0 are set, in the order of the fields.
struct BlockRow {
  BlockKind kind;
  float x;
  uint8_t stretchTop, stretchSide;
  float scaleX, scaleZ, scaleY;
  std::array<const char*, 4> textures;
  uint8_t code;
};

constexpr std::array<const char*, 4> All(const char* name) { return {name, name, name, name}; }

constexpr BlockRow kBlocks[] = {
    {BlockKind::Plain, 0, 0, 0, 0, 0, 0, All("_default.bmp"), clsblock::Normal},
    {BlockKind::JumpPad, -1, 1, 0, 2, 2, 0, All("Blue With Yellow Dot.bmp"), clsblock::JumpPad},
    {BlockKind::Building,
     -1,
     1,
     1,
     3,
     4,
     4,
     {"buildingFront.bmp", "building Side.bmp", "building Side.bmp", "buildingTop.bmp"},
     clsblock::Building},
    {BlockKind::WinLevel, -1, 1, 0, 2, 2, 0, All("_WIN.bmp"), clsblock::WinLevel},
    {BlockKind::Falling, -1, 0, 0, 2, 2, 0, All("red.bmp"), clsblock::FallingBlock},
    {BlockKind::Ice, -1, 0, 0, 2, 2, 0, All("Ice2.bmp"), clsblock::Ice},
    {BlockKind::InstantKill, -1, 0, 0, 2, 2, 0, All("Red Cross on Grey.bmp"),
     clsblock::InstantKill},
    {BlockKind::TurboPad,
     -1,
     1,
     0,
     2,
     3,
     0,
     {"buildingTop.bmp", "buildingTop.bmp", "buildingTop.bmp", "AnimationTest_0.bmp"},
     clsblock::TurboPad},
};

template <typename Object, size_t N>
void Paint(Object& object, const std::array<const char*, N>& textures) {
  for (size_t face = 0; face < N; ++face) {
    object.Texture(textures[face], std::string(1, static_cast<char>('A' + face)),
                   Document.TextureDir);
  }
}

clsblock MakeBlock(const BlockRow& row) {
  clsblock block;
  block.create(row.x, 0, DepthAhead(), 1, 1, 1);
  // The stretch comes first: the size setters rebuild the texture coordinates from it.
  if (row.stretchTop > 0) block.ScaleTextureTop(row.stretchTop);
  if (row.stretchSide > 0) block.ScaleTextureSide(row.stretchSide);
  block.scaleX(row.scaleX);
  block.scaleZ(row.scaleZ);
  block.scaleY(row.scaleY);
  Paint(block, row.textures);
  block.changeactioncode(row.code);
  return block;
}

}  // namespace

float DepthAhead() { return ToSingle(double{DirectX::CameraPosition.z} + kTargetAhead); }

bool AddBlock(BlockKind kind) {
  const history::Command command("Insert");
  if (!selection::RoomForOneMore(Document.BlockCount)) return false;
  selection::AppendAndSelect(MakeBlock(kBlocks[static_cast<size_t>(kind)]));
  return true;
}

bool AddPlatform() {
  const history::Command command("Insert");
  if (!selection::RoomForOneMore(Document.PlatformCount)) return false;
  clsMovingPlatform platform;
  platform.create(0, 0, DepthAhead());
  platform.scaleX(2);
  platform.scaleZ(2);
  Paint(platform, All("concrete.bmp"));
  platform.Mdir(clsMovingPlatform::Right);
  platform.MloopBack(true);
  platform.Mdist(5);
  platform.Mspeed(5);
  platform.Zpos(DepthAhead());
  selection::AppendAndSelect(std::move(platform));
  return true;
}

bool AddRamp() {
  const history::Command command("Insert");
  if (!selection::RoomForOneMore(Document.RampCount)) return false;
  clsRamp ramp;
  ramp.create(0, 1, DepthAhead());
  Paint(ramp, std::array<const char*, 2>{kDefaultTexture, kDefaultTexture});
  ramp.scaleZ(2);
  selection::AppendAndSelect(std::move(ramp));
  return true;
}

bool AddStar() {
  const history::Command command("Insert");
  if (!selection::RoomForOneMore(Document.StarCount)) return false;
  clsStar star;
  star.load(paths::InInstallFolder("\\models\\orb.x"));
  star.Ypos(1);
  star.Zpos(ToLong(double{DirectX::CameraPosition.z} + kStarAhead));
  selection::AppendAndSelect(std::move(star));
  return true;
}

}  // namespace insert
