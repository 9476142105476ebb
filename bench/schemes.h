// One scene of blocks, drawn by the editor's scheme and by those it is compared with.
#pragma once

#include <vector>

#include "bench/bench_editor.h"
#include "bench/floor_executor.h"
#include "bench/naive_executor.h"

namespace bench {

/// The document's blocks from a few places of the camera. Frames are numbered; the place follows
/// from the number. Every Draw includes reading the whole picture.
class Schemes {
 public:
  static constexpr int kPlaces = 6;

  /// Prepares whatever OpenGL keeps, for the track that is open.
  explicit Schemes(BenchEditor& editor);

  const Image& DrawBatched(int frame);
  const Image& DrawPlain(int frame);
  const Image& DrawFloor(int frame);
  const Image& DrawNaive(int frame);
  /// As DrawBatched, of a document without pieces.
  const Image& DrawEmpty(int frame);

 private:
  template <typename DrawsHere>
  const Image& DrawRecorded(Screen<DrawsHere>& screen, int frame);
  CommandList Recorded(int frame);

  BenchEditor& editor_;
  FloorExecutor floor_;
  NaiveExecutor naive_;
  std::vector<CommandList> emptyFrames_;
};

int DifferingPixels(const Image& a, const Image& b);

}  // namespace bench
