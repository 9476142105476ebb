#include "bench/schemes.h"

#include <utility>

#include "bench/scenes.h"
#include "level/globals.h"
#include "render/frame/RenderFrame.h"

namespace bench {
namespace {

constexpr float kStep = 0.5F;

/// Puts the pieces aside while it lives.
class WithoutPieces {
 public:
  WithoutPieces() : pieces_(std::exchange(static_cast<PieceCollections&>(Document), {})) {}
  ~WithoutPieces() { static_cast<PieceCollections&>(Document) = std::move(pieces_); }
  WithoutPieces(const WithoutPieces&) = delete;
  WithoutPieces& operator=(const WithoutPieces&) = delete;

 private:
  PieceCollections pieces_;
};

size_t PlaceOf(int frame) { return static_cast<size_t>(frame % Schemes::kPlaces); }

}  // namespace

Schemes::Schemes(BenchEditor& editor)
    : editor_(editor), floor_(editor.target), naive_(editor.target) {
  std::vector<CommandList> frames;
  frames.reserve(kPlaces);
  for (int place = 0; place < kPlaces; ++place) frames.push_back(Recorded(place));
  floor_.Prepare(std::move(frames));
  naive_.Load();
  const WithoutPieces without;
  for (int place = 0; place < kPlaces; ++place) emptyFrames_.push_back(Recorded(place));
}

CommandList Schemes::Recorded(int frame) {
  DrawRecorded(editor_.kept, frame);
  return editor_.kept.executor->Take();
}

template <typename DrawsHere>
const Image& Schemes::DrawRecorded(Screen<DrawsHere>& screen, int frame) {
  const Using device(screen);
  LookAtDepth(kSceneDepth + static_cast<float>(PlaceOf(frame)) * kStep);
  RenderFrame();
  return screen.executor->ReadPicture();
}

const Image& Schemes::DrawBatched(int frame) { return DrawRecorded(editor_.batched, frame); }

const Image& Schemes::DrawPlain(int frame) { return DrawRecorded(editor_.plain, frame); }

const Image& Schemes::DrawFloor(int frame) {
  floor_.Draw(PlaceOf(frame));
  return floor_.ReadPicture();
}

const Image& Schemes::DrawNaive(int frame) {
  naive_.Execute(emptyFrames_[PlaceOf(frame)]);
  return naive_.ReadPicture();
}

const Image& Schemes::DrawEmpty(int frame) {
  const WithoutPieces without;
  return DrawBatched(frame);
}

int DifferingPixels(const Image& a, const Image& b) {
  int differing = 0;
  for (size_t i = 0; i < a.pixels.size(); ++i) differing += a.pixels[i] != b.pixels[i] ? 1 : 0;
  return differing;
}

}  // namespace bench
