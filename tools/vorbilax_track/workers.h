// Pieces of work in processes of their own: the document is one per process, and what brings one
// process down does not take the others along.
#pragma once

#include <functional>
#include <string>

namespace track_tool {

struct Handed {
  std::string bytes;  ///< what the work returned
  std::string death;  ///< how its process ended before that; empty: it did not
};

/// Calls work(i) for i from 0 up to count, at most `jobs` at a time, and here ended(i, handed) as
/// each is done, in any order. The process must have no threads. Throws std::runtime_error when not
/// even one process can be started.
void RunWorkers(size_t count, size_t jobs, const std::function<std::string(size_t)>& work,
                const std::function<void(size_t, const Handed&)>& ended);

}  // namespace track_tool
