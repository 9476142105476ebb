// The backdrop: a picture that fills the viewport behind the track.
#pragma once

#include <array>
#include <string>

#include "platform/resources.h"

class clsBackground {
 public:
  /// Empties the name.
  void resetbackground();
  /// Shows the picture file at the full path `file`, over the viewport's present size. Throws
  /// PlatformError when it cannot be loaded; the previous picture stays then.
  void create(const std::string& file);
  /// Draws the rectangle without writing depth; nothing before the first picture.
  void draw() const;

  const std::string& Name() const { return Name_; }

 private:
  TexturePtr Texture_;
  VertexBufferPtr VertexBuffer_;
  std::array<ScreenVertex, 4> Vertices_{};
  std::string Name_;
};
