// Feeds the level reader: it must never crash, and what it reads it must write, read again to the
// same bytes, move and draw. Run: build/fuzz/bin/level_reader_fuzz -max_len=4096
#include <cstdlib>

#include "files/FileIO.h"
#include "tests/support/null_editor.h"

namespace {

/// The device and install folder of the tests, without a test.
class Editor : public DeviceTest {
 public:
  Editor() { SetUp(); }
  void TestBody() override {}
  /// What play does to objects; an overflow ends the run.
  void Play() {
    DrawFrame([] {
      for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
        for (int step = 0; step < 3; ++step) platform.move();
        platform.draw();
      }
      for (clsblock& block : Live(Document.Blocks, Document.BlockCount)) {
        block.Fall();
        block.Bounce();
        block.draw();
      }
      for (clsRamp& ramp : Live(Document.Ramps, Document.RampCount)) ramp.draw();
      for (clsStar& star : Live(Document.Stars, Document.StarCount)) star.draw();
    });
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static Editor editor;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (!FileIO::ReadLevelBytes(bytes, "fuzz").Ok()) return 0;
  std::string saved, again;
  if (!FileIO::LevelBytes(saved).Ok()) std::abort();
  if (!FileIO::ReadLevelBytes(saved, "saved").Ok()) std::abort();
  if (!FileIO::LevelBytes(again).Ok() || saved != again) std::abort();
  editor.Play();
  return 0;
}
