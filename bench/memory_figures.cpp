// What a piece keeps in memory.
#include <malloc.h>

#include "bench/figures.h"
#include "bench/kinds.h"
#include "render/frame/RenderFrame.h"

namespace bench {
namespace {

double HeapBytes() {
  const auto info = mallinfo2();
  return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

}  // namespace

void MemoryFigures(BenchEditor& editor, const Report& report) {
  for (const NamedKind& kind : kKinds) {
    const std::string name = std::string("bytes_per_") + kind.name;
    if (!report.Wants({name})) continue;
    // Loads the pictures, which all pieces share.
    editor.Open(KindTrack(kind.kind, 100));
    editor.Open(KindTrack(kind.kind, 0));
    const double before = HeapBytes();
    editor.Open(KindTrack(kind.kind, kManyPieces));
    report.Figure(name, (HeapBytes() - before) / kManyPieces, "bytes");
    // A fresh device: one that has recorded much keeps the room for it.
    auto device = std::make_unique<Device>(std::make_unique<DropFrames>());
    const Using fresh(device);
    LookAtDepth(kSceneDepth);
    RenderFrame();
    report.Figure(name + "_after_frame", (HeapBytes() - before) / kManyPieces, "bytes");
  }
}

}  // namespace bench
