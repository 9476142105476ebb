// The path of a drive as a ribbon through the scene: coloured by speed, with a tick per second and
// marks of what happened on the way.
#pragma once

#include <optional>
#include <span>

#include "editor/ribbon/chunked_line.h"

namespace ribbon {

class Ribbon {
 public:
  /// The palette must outlive the ribbon.
  explicit Ribbon(const Palette& palette) : path_(&palette) {}

  /// The path to show and, of one that was driven before, the rest from where this one left it.
  /// Both are copied; showing what is shown already costs one comparison.
  void Show(const drive::Path& path, std::span<const drive::PathPoint> oldRest);
  void Hide();
  bool Shown() const { return shown_; }

  /// Records its draws inside a scene and leaves the device's states as they were.
  void Draw();
  /// The point of the path under the mouse, in pixels of the viewport; the nearest on the screen.
  std::optional<size_t> PointAt(float x, float y) const;

 private:
  bool shown_ = false;
  ChunkedLine path_;
  ChunkedLine oldRest_{nullptr};
};

}  // namespace ribbon
