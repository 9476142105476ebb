// A decoded picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Pixels row by row from the top left corner, each 0xAARRGGBB, alpha not premultiplied.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;

  Image() = default;
  Image(int w, int h, uint32_t fill = 0xFF000000)
      : width(w), height(h), pixels(static_cast<size_t>(w) * static_cast<size_t>(h), fill) {}

  uint32_t& At(int x, int y) { return pixels[Index(x, y)]; }
  uint32_t At(int x, int y) const { return pixels[Index(x, y)]; }

 private:
  size_t Index(int x, int y) const {
    return static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
  }
};
