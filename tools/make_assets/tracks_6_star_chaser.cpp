#include "tools/make_assets/tracks_parts.h"
namespace art::tracks {
namespace {
using enum Look;
constexpr BoxRow kBoxes[] = { {Plain, {-2, 0, 0}, {4, 1, 12}} };
}
Track StarChaser() { return {"6 Star Chaser.lvl", "bk004.jpg", false, kBoxes, {}, {}, {}}; }
}
