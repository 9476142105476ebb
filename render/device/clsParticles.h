// The particle effects: a collected star bursts into points that float up, fade and vanish.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/resources.h"

/// One point.
struct Particle {
  Vector3 Position;
  Vector3 Velocity;  ///< a fifth of it is applied per frame
  ColourValue StartColour, EndColour, Colour;
  int32_t Life = 0;       ///< milliseconds
  int32_t StartTime = 0;  ///< millisecond tick count at birth
  int32_t Expired = 0;    ///< 0 while alive, 1 once dead
};

/// The 32-bit colour; channels outside 0 to 1 saturate.
uint32_t PackColour(const ColourValue& colour);

class clsParticles {
 public:
  /// Loads the picture of one point. Throws PlatformError.
  void create();
  /// Empties the list.
  void resetParticles();
  /// Adds the 30 points of a collected star at this place.
  void AddStarExplosion(float x, float y, float z);
  /// Advances all points by one frame and draws them; nothing is drawn while there are none.
  void draw();
  /// A colour component from 0.1 to 10 in steps of 0.1.
  static float RandomColour();

  int32_t ParticleCount() const { return ParticleCount_; }
  const std::vector<Particle>& ParticleList() const { return ParticleList_; }
  const std::vector<PointVertex>& ParticleVertices() const { return ParticleVertices_; }

 private:
  void UpdateParticles();

  int32_t ParticleCount_ = 0;
  std::vector<Particle> ParticleList_ = std::vector<Particle>(1);
  std::vector<PointVertex> ParticleVertices_ = std::vector<PointVertex>(1);
  TexturePtr ParticleTexture_;
};

/// The one particle system; a test makes a fresh one by assignment.
inline clsParticles Particles;
