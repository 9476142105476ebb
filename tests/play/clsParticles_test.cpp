#include "render/device/clsParticles.h"

#include "platform/random.h"
#include "tests/support/null_editor.h"

namespace {

/// Answers every question with the same number.
struct FixedSource : random_numbers::Source {
  explicit FixedSource(float number) : value(number) { random_numbers::Use(this); }
  ~FixedSource() override { random_numbers::Use(nullptr); }
  float Next() override { return value; }
  void Reseed() override { ++reseeded; }
  float value;
  int reseeded = 0;
};

class ParticlesTest : public DeviceTest {
 protected:
  ParticlesTest() { ticks::Use(&clock); }
  ~ParticlesTest() override { ticks::Use(nullptr); }
  size_t DrawsAt(int64_t milliseconds) {
    clock.microseconds = milliseconds * 1000;
    return DrawFrame([this] { particles.draw(); }).commands.size();
  }
  const Particle& Point(size_t i) const { return particles.ParticleList()[i]; }
  uint32_t Colour(size_t i) const { return particles.ParticleVertices()[i].colour; }
  null_platform::VirtualClock clock;
  clsParticles particles;
};

TEST_F(ParticlesTest, AStarBurstsIntoThirtyPoints) {
  const DeviceStates& now = DirectX::D3DDevice->States();
  EXPECT_EQ(now.pointSize, 0.03F);
  DirectX::D3DDevice->SetPointSize(0);
  FixedSource random(0.5F);
  particles.AddStarExplosion(1, 2, 3);
  ASSERT_EQ(particles.ParticleCount(), 30);
  EXPECT_EQ(random.reseeded, 90);
  EXPECT_EQ(Point(0).Position, (Vector3{1.2F, 2.5F, 2.8F}));
  EXPECT_NEAR(Point(0).Velocity.x, 0, 1e-6);
  EXPECT_NEAR(Point(0).Velocity.y, 0.6, 1e-6);
  EXPECT_EQ(Point(0).Life, 10000);
  EXPECT_EQ(Point(0).StartColour, (ColourValue{5, 5, 5, 1})) << "5.1 of 0.1 to 10, whole";
  EXPECT_EQ(Colour(29), 0xFFFFFFFFU) << "5 saturates";

  EXPECT_EQ(DrawsAt(5000), 1U);
  EXPECT_NEAR(Point(0).Position.y, 2.5 + 0.6 / 5, 1e-6);
  EXPECT_NEAR(Point(0).Velocity.y, 0.5999, 1e-6);
  EXPECT_EQ(Point(0).Colour, (ColourValue{2.5F, 2.5F, 2.5F, 0.5F}));
  EXPECT_EQ(Colour(0), 0x80FFFFFFU);
  const Command& draw = world->screen.commands.back();
  const DeviceStates& then = world->screen.states[draw.states];
  EXPECT_EQ(std::pair(draw.vertexCount, then.pointSize), std::pair(30U, 0.03F));
  EXPECT_TRUE(then.alphaBlend && !then.depthWrite && now.depthWrite);

  random.value = 0;
  particles.AddStarExplosion(0, 5, 0);
  EXPECT_NEAR(Point(30).Velocity.x, -0.3, 1e-6);
  EXPECT_NEAR(Point(30).Velocity.y, -0.6, 1e-6);
  EXPECT_EQ(Colour(30), 0xFF000000U) << "0.1, whole, is none";
  DrawsAt(5040);
  EXPECT_NEAR(Point(30).Position.x, 0.2 - 0.3 / 5, 1e-6);
  EXPECT_GT(Point(30).Velocity.y, 0) << "only its first step goes down";
  random.value = 0.999F;
  EXPECT_EQ(clsParticles::RandomColour(), 10);
}

TEST_F(ParticlesTest, ListEmptiesWhenAllAreDead) {
  particles.AddStarExplosion(0, 0, 0);
  for (const Particle& point : particles.ParticleList()) {
    EXPECT_TRUE(point.Life >= 7500 && point.Life <= 12500);
    EXPECT_TRUE(point.StartColour.r >= 0 && point.StartColour.r <= 10);
  }
  EXPECT_NE(Point(0).Life, Point(1).Life) << "for all the reseeding";
  clock.microseconds = 7'000'000;
  particles.AddStarExplosion(0, 0, 0);
  DrawsAt(12501);
  EXPECT_EQ(DrawsAt(12541), 1U);
  EXPECT_EQ(particles.ParticleCount(), 60) << "the second burst lives";
  EXPECT_EQ(Point(0).Position.z, -1000);
  DrawsAt(1'000'000);
  DrawsAt(1'000'040);
  EXPECT_EQ(particles.ParticleCount(), 0);
  EXPECT_EQ(DrawsAt(1'000'080), 0U);
}

}  // namespace
