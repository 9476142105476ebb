// Feeds the level reader: it must never crash, and what it reads it must write and read again to
// the same bytes. Run: build/fuzz/bin/level_reader_fuzz -max_len=4096
#include <cstdlib>

#include "files/FileIO.h"
#include "tests/support/null_editor.h"

namespace {

/// The device and install folder of the tests, without a test.
class Editor : public DeviceTest {
 public:
  Editor() { SetUp(); }
  void TestBody() override {}
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
  return 0;
}
