#include "assets/backdrops.h"

#include <future>

namespace art {

Pictures Backdrops() {
  // Only the city has hard edges that need more than one sample a pixel.
  constexpr struct {
    const char* file;
    Color (*paint)(double, double);
    int samples;
  } kScenes[] = {{"_default.jpg", BlueSky, 1},    {"bk001.jpg", SunsetPeaks, 1},
                 {"bk002.jpg", NorthernNight, 1}, {"bk003.jpg", MistyForest, 1},
                 {"bk004.jpg", RingedPlanet, 1},  {"bk005.jpg", CityDusk, 2}};
  // The slowest pictures of all: each on its own thread.
  std::vector<std::future<Image>> images;
  for (const auto& scene : kScenes) {
    images.push_back(
        std::async(std::launch::async, BakePicture, 640, 480, scene.samples, scene.paint));
  }
  Pictures pictures;
  for (size_t i = 0; i < images.size(); ++i) {
    pictures.push_back({kScenes[i].file, images[i].get()});
  }
  return pictures;
}

}  // namespace art
