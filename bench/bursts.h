// Times what is to be compared in turn, so that the machine's moods hit all of it alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Milliseconds.
struct Times {
  double wall = 0;
  double caller = 0;  ///< time that the calling thread had a core
};

Times Time(const std::function<void()>& action);

/// One of several ways to do the same.
struct Variant {
  std::string name;
  std::function<void(int frame)> draw;
  int frames = 0;             ///< of a burst; 0: as many as a burst of some length takes
  std::vector<Times> bursts;  ///< filled by RunInterleaved: the means of one frame
  int drawn = 0;

  /// Each frame's number is the one after the last.
  void DrawNext() { draw(drawn++); }
};

/// How often every variant has its turn: at most `most` times, fewer when all turns would take
/// longer than `seconds`, but at least `least` times.
struct Rounds {
  int least, most;
  double seconds;
};

/// A burst of each variant after the other, in rounds. Each burst of quick frames begins with
/// some that are not counted: they bring back what the others drove out of the caches.
void RunInterleaved(std::vector<Variant>& variants, const Rounds& rounds);

double Median(std::vector<double> values);
double MedianOf(const Variant& variant, double Times::*which);
/// The median of the rounds' quotients.
double MedianRatio(const Variant& above, const Variant& below, double Times::*which);

/// The median wall time of so many runs.
double MedianTime(int runs, const std::function<void()>& action);

}  // namespace bench
