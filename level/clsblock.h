// The box-shaped piece of track: the plain block and every special block.
#pragma once

#include "level/AnimatedTextures.h"
#include "level/block_motion.h"
#include "level/box_object.h"

class clsblock : public BoxObject {
 public:
  /// Kind codes.
  enum : uint8_t {
    Normal = 0,
    WinLevel = 1,
    JumpPad = 2,
    Ice = 3,
    FallingBlock = 4,
    TurboPad = 5,
    InstantKill = 6,
    Building = 10
  };

  clsblock() : BoxObject(kKind) {}

  /// Smallest corner and sizes, unchecked; the depth becomes scaleZ - 0.1. Loads no textures.
  void create(float CoordX, float CoordY, float CoordZ, float scaleX, float scaleY, float scaleZ);

  // Positions in world units. The planes follow a move at the next size, stretch or selection
  // change or frame of motion.
  float Xpos() const { return Position().x; }
  void Xpos(float NewVal) { Place({NewVal, Position().y, Position().z}); }
  float Ypos() const { return Position().y; }
  /// Only above -1 is stored.
  void Ypos(float NewVal);
  /// The whole number nearest to the stored depth.
  int32_t Zpos() const;
  /// Only 0 or more is stored.
  void Zpos(int32_t NewVal);

  /// Downward displacement of the last frame of a fall or bounce.
  float fallvel() const { return motion_.fallvel; }

  /// As BoxObject's; a picture of the animated texture begins to move in play.
  void Picture(size_t face, const FacePicturePtr& picture);
  using BoxObject::Picture;
  /// Loads TextureDir & Name onto the face with this letter; any other letter does nothing. Throws
  /// PlatformError, leaving the face as it was, when the file cannot be loaded.
  void Texture(const std::string& Name, const std::string& face, const std::string& TextureDir);
  /// Puts the front texture on the device's stage 0.
  void SETTEXTURE() const;
  /// Moves every animated face to its next frame.
  void UpdateAnimatedTexture();
  /// The same for many blocks: each picture is asked of its file once.
  void UpdateAnimatedTexture(AnimatedTextures::Pictures& pictures);

  /// Starts the jump pad's bounce: 22 frames up by 1 and back.
  void Bounce() { motion_.Bounce(Position().y); }
  /// Starts a fall that never ends.
  void Fall() { motion_.Falling = true; }
  /// Draws the block, then advances fall and bounce by one frame.
  void draw();
  /// The state of its fall or bounce; putting one in place of it puts the block where it was then.
  const BlockMotion& Motion() const { return motion_; }
  void Resume(float y, const BlockMotion& motion);

 private:
  static const Kind kKind;

  uint8_t AnimatedFaces_ = 0;  ///< a bit for each
  BlockMotion motion_;
};
