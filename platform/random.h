// Uniform random numbers, replaceable by a source of a test's own.
#pragma once

namespace random_numbers {

class Source {
 public:
  virtual ~Source() = default;
  /// Uniform in [0, 1).
  virtual float Next() = 0;
  /// Starts anew from the clock.
  virtual void Reseed() = 0;
};

/// Names the source that the functions below ask; it must outlive its use. Null: the program's own.
void Use(Source* source);

float Next();
void Reseed();

}  // namespace random_numbers
