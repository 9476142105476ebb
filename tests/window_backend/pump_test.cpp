#include <QTimer>
#include <chrono>
#include <ctime>

#include "tests/window_backend/fixture.h"

namespace {

using Moments = std::chrono::steady_clock;

double PumpFor(double milliseconds) {
  fixture::Settle();
  const auto begin = Moments::now();
  fixture::Toolkit().Pump().Pump(milliseconds);
  return std::chrono::duration<double, std::milli>(Moments::now() - begin).count();
}

TEST(Pump, WaitsAboutAsLongAsAsked) {
  // Other programs may delay a wait, never shorten every one.
  double longest = 0.0;
  for (int round = 0; round < 5; ++round) longest = std::max(longest, PumpFor(30.4));
  EXPECT_GE(longest, 30.4);
  EXPECT_LT(longest, 2000.0);
}

TEST(Pump, ReturnsAtOnceWithoutAWait) { EXPECT_LT(PumpFor(0.0), 500.0); }

TEST(Pump, WakesForAnEvent) {
  bool handled = false;
  QTimer::singleShot(20, [&handled] { handled = true; });
  const double waited = PumpFor(5000.0);
  EXPECT_TRUE(handled || waited < 20.0);
  EXPECT_LT(waited, 3000.0);
}

TEST(Pump, SleepsInsteadOfSpinning) {
  fixture::Settle();
  const std::clock_t before = std::clock();
  const auto begin = Moments::now();
  while (Moments::now() - begin < std::chrono::milliseconds(400)) {
    fixture::Toolkit().Pump().Pump(39.5);
  }
  const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
  EXPECT_LT(used, 0.2);
}

}  // namespace
