#include "bench/bursts.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

namespace bench {
namespace {

constexpr double kBurst = 60;       // milliseconds
constexpr double kSlowFrame = 250;  // milliseconds
constexpr int kMostFrames = 24;
constexpr int kUncounted = 3;

double ThreadMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Draws the first frames, which make what later ones find; returns the milliseconds of another.
double FrameTime(Variant& variant) {
  const double first = Time([&] { variant.DrawNext(); }).wall;
  return first > 2 * kSlowFrame ? first : Time([&] { variant.DrawNext(); }).wall;
}

Times Burst(Variant& variant, bool slow) {
  for (int i = 0; i < kUncounted && !slow; ++i) variant.DrawNext();
  const Times sum = Time([&] {
    for (int frame = 0; frame < variant.frames; ++frame) variant.DrawNext();
  });
  return {sum.wall / variant.frames, sum.caller / variant.frames};
}

}  // namespace

Times Time(const std::function<void()>& action) {
  using Clock = std::chrono::steady_clock;
  const double thread = ThreadMilliseconds();
  const auto start = Clock::now();
  action();
  const std::chrono::duration<double, std::milli> wall = Clock::now() - start;
  return {wall.count(), ThreadMilliseconds() - thread};
}

void RunInterleaved(std::vector<Variant>& variants, const Rounds& rounds) {
  std::vector<bool> slow;
  double round = 0;
  for (Variant& variant : variants) {
    const double frame = FrameTime(variant);
    const int fitting = static_cast<int>(std::lround(kBurst / frame));
    if (variant.frames == 0) variant.frames = std::clamp(fitting, 1, kMostFrames);
    slow.push_back(frame > kSlowFrame);
    round += frame * (variant.frames + (slow.back() ? 0 : kUncounted));
  }
  const int affordable = static_cast<int>(rounds.seconds * 1000 / round);
  for (int turn = std::clamp(affordable, rounds.least, rounds.most); turn > 0; --turn) {
    for (size_t i = 0; i < variants.size(); ++i) {
      variants[i].bursts.push_back(Burst(variants[i], slow[i]));
    }
  }
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::ranges::sort(values);
  const size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double MedianOf(const Variant& variant, double Times::*which) {
  std::vector<double> values;
  for (const Times& burst : variant.bursts) values.push_back(burst.*which);
  return Median(std::move(values));
}

double MedianRatio(const Variant& above, const Variant& below, double Times::*which) {
  std::vector<double> ratios;
  for (size_t round = 0; round < above.bursts.size(); ++round) {
    ratios.push_back(above.bursts[round].*which / below.bursts[round].*which);
  }
  return Median(std::move(ratios));
}

double MedianTime(int runs, const std::function<void()>& action) {
  std::vector<double> times;
  times.reserve(static_cast<size_t>(runs));
  for (int run = 0; run < runs; ++run) times.push_back(Time(action).wall);
  return Median(std::move(times));
}

}  // namespace bench
