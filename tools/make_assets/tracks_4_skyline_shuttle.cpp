#include "tools/make_assets/tracks_parts.h"
namespace art::tracks {
namespace {
using enum Look;
constexpr BoxRow kBoxes[] = { {Plain, {-2, 0, 0}, {4, 1, 12}} };
}
Track SkylineShuttle() { return {"4 Skyline Shuttle.lvl", "bk005.jpg", false, kBoxes, {}, {}, {}}; }
}
