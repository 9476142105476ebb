// The ribbon keeps what it has drawn where the path stays, leaves no trace in the device, and
// stands every path.
#include "editor/ribbon/ribbon.h"

#include "platform/d3dx.h"
#include "play/clsPlayer.h"
#include "render/frame/RenderFrame.h"
#include "tests/support/null_editor.h"
#include "tests/support/paths_to_show.h"

namespace {

class RibbonTest : public DeviceTest {
 protected:
  using Screen = null_platform::Screen;
  Screen Frame(const std::function<void()>& added = {}) {
    DirectX::ApplyCamera();
    RenderFrame({{}, added});
    return world->screen;
  }
  static std::vector<Vertex> VerticesIn(const Screen& screen) {
    std::vector<Vertex> all;
    for (const Command& command : screen.commands) {
      if (command.buffer == nullptr || command.buffer->Format() != VertexFormat::World) continue;
      const auto drawn =
          command.buffer->Vertices<Vertex>().subspan(command.firstVertex, command.vertexCount);
      all.insert(all.end(), drawn.begin(), drawn.end());
    }
    return all;
  }
  std::vector<Vertex> Drawn(ribbon::Ribbon& ribbon) {
    return VerticesIn(Frame([&] { ribbon.Draw(); }));
  }
};

/// Whatever was shown before, the picture is that of a ribbon that never showed anything else.
TEST_F(RibbonTest, FollowsEveryChangeOfThePath) {
  std::mt19937 random(5);
  ribbon::Ribbon kept(ribbon::kOwnDrive);
  drive::Path path;
  for (int round = 0; round < 150; ++round) {
    const size_t at = path.empty() ? 0 : random() % path.size();
    switch (random() % 4) {
      case 0:
        path = RandomPath(static_cast<unsigned>(random()), random() % 130);
        break;
      case 1:
        path.resize(at);
        break;
      case 2:
        if (!path.empty()) path[at].place.x += 0.7F;
        break;
      default:
        if (!path.empty()) path[at].marks = static_cast<uint8_t>(random() % 128);
    }
    const size_t departure = path.empty() ? 0 : random() % path.size();
    ribbon::Ribbon fresh(ribbon::kOwnDrive);
    for (ribbon::Ribbon* ribbon : {&kept, &fresh})
      ribbon->Show(path, std::span(path).subspan(departure));
    ASSERT_EQ(Drawn(kept), Drawn(fresh)) << round;
  }
}

TEST_F(RibbonTest, MakesOnlyWhatIsNew) {
  drive::Path path = RandomPath(3, 1000);
  ribbon::Ribbon ribbon(ribbon::kOwnDrive);
  ribbon.Show(path, {});
  const Screen first = Frame([&] { ribbon.Draw(); });
  path[500].place.x += 1;
  ribbon.Show(path, {});
  const Screen second = Frame([&] { ribbon.Draw(); });
  std::set<const void*> old, fresh;
  for (const Command& command : first.commands) old.insert(command.buffer);
  for (const Command& command : second.commands) {
    if (!old.contains(command.buffer)) fresh.insert(command.buffer);
  }
  EXPECT_TRUE(!fresh.empty() && fresh.size() <= 3) << fresh.size();
}

TEST_F(RibbonTest, LeavesNoTraceInTheDevice) {
  world->meshReader = [](const std::string&) {
    return std::vector{d3dx::MeshObject::Subset{{}, std::vector<Vertex>(3)}};
  };
  clsPlayer car;
  car.load(paths::InInstallFolder("\\models\\player.x"));
  Document.Blocks.emplace_back().create(-1, 0, 0, 2, 1, 9);
  Document.BlockCount = 0;
  const auto same = [](const Screen& a, const Screen& b) {
    return a.states == b.states && a.cameras == b.cameras && a.worlds.size() == b.worlds.size() &&
           std::ranges::equal(a.commands, b.commands, [](const Command& x, const Command& y) {
             return x.buffer == y.buffer && x.texture == y.texture && x.world == y.world &&
                    x.states == y.states && x.camera == y.camera;
           });
  };
  Frame();
  const Screen before = Frame();
  const DeviceStates states = DirectX::D3DDevice->States();
  ribbon::Ribbon ribbon(ribbon::kFoundDrive);
  ribbon.Show(RandomPath(2, 300), {});
  const Matrix4 placed = d3dx::RotationY(1);
  const Screen with = Frame([&] {
    DirectX::D3DDevice->SetTransform(Transform::World, placed);
    ribbon.Draw();
    car.DrawGhost({1, 2, 3});
    EXPECT_EQ(DirectX::D3DDevice->GetTransform(Transform::World), placed);
  });
  EXPECT_GT(with.commands.size(), before.commands.size() + 10);
  EXPECT_EQ(DirectX::D3DDevice->States(), states);
  ribbon.Hide();
  EXPECT_TRUE(same(Frame([&] { ribbon.Draw(); }), before) && !ribbon.Shown());
}

TEST_F(RibbonTest, StandsEveryPath) {
  for (const drive::Path& path : OddPaths()) {
    ribbon::Ribbon ribbon(ribbon::kOwnDrive);
    ribbon.Show(path, path);
    for (const Vertex& v : Drawn(ribbon)) {
      ASSERT_TRUE(std::abs(v.x) < 2e5F && std::abs(v.y) < 2e5F && std::abs(v.z) < 2e5F);
    }
    ribbon.PointAt(300, 200);
  }
}

}  // namespace
