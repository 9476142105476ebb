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
  void DrawAt(int64_t milliseconds) {
    clock.microseconds = milliseconds * 1000;
    DirectX::D3DDevice->BeginScene();
    particles.draw();
    DirectX::D3DDevice->EndScene();
    DirectX::D3DDevice->Present();
  }
  null_platform::VirtualClock clock;
  clsParticles particles;
};

TEST_F(ParticlesTest, AStarBurstsIntoThirtyPoints) {
  FixedSource random(0.5F);
  particles.AddStarExplosion(1, 2, 3);
  ASSERT_EQ(particles.ParticleCount(), 30);
  EXPECT_EQ(random.reseeded, 90);
  const Particle& point = particles.ParticleList()[0];
  EXPECT_EQ(point.Position, (Vector3{1.2F, 2.5F, 2.8F}));
  EXPECT_NEAR(point.Velocity.x, 0, 1e-6);
  EXPECT_NEAR(point.Velocity.y, 0.6, 1e-6);
  EXPECT_EQ(point.Life, 10000);
  EXPECT_EQ(point.StartColour, (ColourValue{5, 5, 5, 1})) << "5.1 of 0.1 to 10, whole";
  EXPECT_EQ(particles.ParticleVertices()[29].colour, 0xFFFFFFFFU) << "5 saturates";

  DrawAt(5000);
  EXPECT_NEAR(point.Position.y, 2.5 + 0.6 / 5, 1e-6);
  EXPECT_NEAR(point.Velocity.y, 0.5999, 1e-6);
  EXPECT_EQ(point.Colour, (ColourValue{2.5F, 2.5F, 2.5F, 0.5F}));
  EXPECT_EQ(particles.ParticleVertices()[0].colour, 0x80FFFFFFU);
  const Command& draw = world->screen.commands.back();
  EXPECT_EQ(draw.vertexCount, 30U);
  const DeviceStates& states = world->screen.states[draw.states];
  EXPECT_EQ(states.pointSize, 0.03F);
  EXPECT_TRUE(states.alphaBlend && !states.depthWrite);
  EXPECT_TRUE(DirectX::D3DDevice->States().depthWrite);

  random.value = 0;
  particles.AddStarExplosion(0, 5, 0);
  EXPECT_NEAR(particles.ParticleList()[30].Velocity.x, -0.3, 1e-6);
  EXPECT_NEAR(particles.ParticleList()[30].Velocity.y, -0.6, 1e-6);
  EXPECT_EQ(particles.ParticleVertices()[30].colour, 0xFF000000U) << "0.1, whole, is none";
  DrawAt(5040);
  EXPECT_NEAR(particles.ParticleList()[30].Position.x, 0.2 - 0.3 / 5, 1e-6);
  EXPECT_GT(particles.ParticleList()[30].Velocity.y, 0) << "only its first step goes down";
  random.value = 0.999F;
  EXPECT_EQ(clsParticles::RandomColour(), 10);
}

TEST_F(ParticlesTest, ListEmptiesWhenAllAreDead) {
  particles.AddStarExplosion(0, 0, 0);
  for (const Particle& point : particles.ParticleList()) {
    EXPECT_TRUE(point.Life >= 7500 && point.Life <= 12500);
    EXPECT_TRUE(point.StartColour.r >= 0 && point.StartColour.r <= 10);
  }
  EXPECT_NE(particles.ParticleList()[0].Life, particles.ParticleList()[1].Life)
      << "for all the reseeding";
  clock.microseconds = 7'000'000;
  particles.AddStarExplosion(0, 0, 0);
  DrawAt(12501);
  DrawAt(12541);
  EXPECT_EQ(particles.ParticleCount(), 60) << "the second burst lives";
  EXPECT_EQ(particles.ParticleList()[0].Position.z, -1000);
  DrawAt(1'000'000);
  DrawAt(1'000'040);
  EXPECT_EQ(particles.ParticleCount(), 0);
  DrawAt(1'000'080);
  EXPECT_TRUE(world->screen.commands.empty());
}

}  // namespace
